#include "output/device_list.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Devices that one listing may name; beyond this a listing is broken and every combo would drown.
constexpr qsizetype mostDevices = 4096;
constexpr auto dopMark = "  (DoP="_L1;

/// "[1] Name  (DoP=no)", the form of back ends that number their devices.
std::optional<ListedDevice> bracketed(const QString &line)
{
    constexpr auto bracketEnd = "] "_L1;
    const qsizetype end = line.indexOf(bracketEnd);
    if (end < 0)
        return std::nullopt;
    QString name = line.mid(end + bracketEnd.size()).trimmed();
    if (const qsizetype mark = name.indexOf(dopMark); mark > 0)
        name = name.left(mark).trimmed();
    return ListedDevice{name, name, line.startsWith("[default]"_L1)};
}

/// "hw:0,0<tab>card name"
ListedDevice hardware(const QStringList &fields)
{
    const QString id = fields.first().trimmed();
    const QString name = fields.size() > 1 ? fields.at(1).trimmed() : QString();
    return {id, name.isEmpty() ? id : u"%1 (%2)"_s.arg(id, name), false};
}

/// "id<tab>name<tab>description …"
ListedDevice described(const QStringList &fields)
{
    const QString description = fields.mid(2).join(u' ').trimmed();
    const QString label = description.isEmpty() ? fields.at(1) : u"%1 (%2)"_s.arg(description, fields.at(1));
    return {fields.first().trimmed(), label, false};
}

ListedDevice soundServer(const QStringList &fields)
{
    QString id = fields.first().trimmed();
    if (id.isEmpty())
        id = u"pulse"_s;
    const QString label =
        id == "pulse"_L1 ? QCoreApplication::translate("DeviceList", "pulse（系统混音器；非位完美）") : id;
    return {id, label, false};
}

std::optional<ListedDevice> parseLine(const QString &line)
{
    if (line.startsWith(u'['))
        return bracketed(line);
    const QStringList fields = line.split(u'\t');
    if (line.startsWith("hw:"_L1) || line.startsWith("plughw:"_L1))
        return hardware(fields);
    if (fields.size() > 2)
        return described(fields);
    if (line.startsWith("pulse"_L1))
        return soundServer(fields);
    return std::nullopt;
}

} // namespace

QList<ListedDevice> parseDeviceList(const QString &text)
{
    QList<ListedDevice> devices;
    for (const QString &raw : text.split(u'\n')) {
        const std::optional<ListedDevice> device = parseLine(raw.trimmed());
        if (!device || device->id.isEmpty() || device->id.startsWith("==="_L1))
            continue;
        if (rowOfDevice(devices, device->id) < 0)
            devices.append(*device);
        if (devices.size() >= mostDevices)
            break;
    }
    return devices;
}

int rowOfDevice(const QList<ListedDevice> &devices, const QString &id)
{
    const auto found = std::ranges::find(devices, id, &ListedDevice::id);
    return found == devices.end() ? -1 : static_cast<int>(std::distance(devices.begin(), found));
}
