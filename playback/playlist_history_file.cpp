#include "playback/playlist_history_file.h"

#include <QDataStream>
#include <QIODevice>
#include <cstring>

namespace {

constexpr char magic[] = "KelpPlayer playlist history 1\n";
constexpr qsizetype magicBytes = sizeof magic - 1;
constexpr qsizetype checksumBytes = sizeof(quint64);
constexpr quint32 mostRuns = 4000000;
constexpr quint32 mostEntries = 4000000;

constexpr QChar separator(0x1f); // of a saved row

// Flags of an entry: what follows its path.
constexpr quint8 hasText = 1;
constexpr quint8 hasContainer = 2;

quint64 mixed(quint64 state, quint64 word)
{
    constexpr quint64 odd = 0x9E3779B97F4A7C15U;
    state = (state ^ word) * odd;
    return state ^ (state >> 29);
}

quint64 mixedBytes(quint64 state, const char *bytes, qsizetype size)
{
    state = mixed(state, static_cast<quint64>(size));
    for (; size >= qsizetype(sizeof(quint64)); size -= qsizetype(sizeof(quint64)), bytes += sizeof(quint64)) {
        quint64 word = 0;
        std::memcpy(&word, bytes, sizeof word);
        state = mixed(state, word);
    }
    quint64 rest = 0;
    std::memcpy(&rest, bytes, static_cast<std::size_t>(size));
    return mixed(state, rest);
}

void write(QDataStream &out, const PlaylistEntry &entry)
{
    const bool container = entry.isContainerTrack() || entry.startSec != 0. || entry.endSec != 0.;
    const auto flags =
        static_cast<quint8>((entry.text.isEmpty() ? 0 : hasText) | (container ? hasContainer : 0));
    out << flags << entry.path;
    if (!entry.text.isEmpty())
        out << entry.text;
    if (container)
        out << entry.cuePath << entry.isoPath << qint32(entry.track) << entry.startSec << entry.endSec;
}

void write(QDataStream &out, const PlaylistChange &change)
{
    out << static_cast<quint8>(change.kind) << quint32(change.runs.size());
    for (const RowRun &run : change.runs)
        out << qint32(run.first) << qint32(run.count);
    out << quint32(change.entries.size());
    for (const PlaylistEntry &entry : change.entries)
        write(out, entry);
}

bool read(QDataStream &in, PlaylistEntry &entry)
{
    quint8 flags = 0;
    in >> flags >> entry.path;
    if (flags & hasText)
        in >> entry.text;
    if (flags & hasContainer) {
        qint32 track = 0;
        in >> entry.cuePath >> entry.isoPath >> track >> entry.startSec >> entry.endSec;
        entry.track = track;
    }
    return in.status() == QDataStream::Ok && !entry.path.isEmpty();
}

std::optional<PlaylistChange> readChange(QDataStream &in)
{
    quint8 kind = 0;
    quint32 runs = 0;
    in >> kind >> runs;
    if (in.status() != QDataStream::Ok || kind > quint8(PlaylistChange::Kind::Reorder) || runs > mostRuns)
        return std::nullopt;
    PlaylistChange change;
    change.kind = static_cast<PlaylistChange::Kind>(kind);
    // Nothing is reserved by a number that was read: the list grows as far as there are bytes.
    for (quint32 i = 0; i < runs; ++i) {
        qint32 first = 0;
        qint32 count = 0;
        in >> first >> count;
        if (in.status() != QDataStream::Ok || first < 0 || count < 1 || quint32(count) > mostEntries ||
            quint32(first) > mostEntries)
            return std::nullopt;
        change.runs.append(RowRun{first, count});
    }
    quint32 entries = 0;
    in >> entries;
    if (in.status() != QDataStream::Ok || entries > mostEntries)
        return std::nullopt;
    for (quint32 i = 0; i < entries; ++i) {
        PlaylistEntry entry;
        if (!read(in, entry))
            return std::nullopt;
        change.entries.append(std::move(entry));
    }
    return isConsistent(change) ? std::optional(std::move(change)) : std::nullopt;
}

bool readChanges(QDataStream &in, quint32 count, QList<PlaylistChange> &changes)
{
    for (quint32 i = 0; i < count; ++i) {
        std::optional<PlaylistChange> change = readChange(in);
        if (!change)
            return false;
        changes.append(*std::move(change));
    }
    return true;
}

} // namespace

quint64 listFingerprint(const QStringList &savedRows)
{
    quint64 state = static_cast<quint64>(savedRows.size());
    for (const QString &row : savedRows) {
        // Titles change with the tags, and the list stays the same.
        const QStringView key = QStringView(row).sliced(row.indexOf(separator) + 1);
        state = mixedBytes(state, reinterpret_cast<const char *>(key.data()),
                           key.size() * qsizetype(sizeof(QChar)));
    }
    return state;
}

QByteArray historyBytes(const StoredHistory &stored)
{
    QByteArray bytes(magic, magicBytes);
    bytes.append(checksumBytes, '\0');
    {
        QDataStream out(&bytes, QIODevice::WriteOnly | QIODevice::Append);
        out.setVersion(QDataStream::Qt_6_0);
        out << stored.fingerprint << quint32(stored.history.undoChanges().size())
            << quint32(stored.history.redoChanges().size());
        for (const QList<PlaylistChange> *changes :
             {&stored.history.undoChanges(), &stored.history.redoChanges()}) {
            for (const PlaylistChange &change : *changes)
                write(out, change);
        }
    }
    return withHistoryChecksum(std::move(bytes));
}

QByteArray withHistoryChecksum(QByteArray bytes)
{
    constexpr qsizetype head = magicBytes + checksumBytes;
    if (bytes.size() < head)
        return bytes;
    const quint64 checksum = mixedBytes(0, bytes.constData() + head, bytes.size() - head);
    std::memcpy(bytes.data() + magicBytes, &checksum, sizeof checksum);
    return bytes;
}

std::optional<StoredHistory> parseHistory(const QByteArray &bytes)
{
    constexpr qsizetype head = magicBytes + checksumBytes;
    if (bytes.size() < head || bytes.size() > mostHistoryFileBytes ||
        std::memcmp(bytes.constData(), magic, magicBytes) != 0)
        return std::nullopt;
    quint64 checksum = 0;
    std::memcpy(&checksum, bytes.constData() + magicBytes, sizeof checksum);
    if (checksum != mixedBytes(0, bytes.constData() + head, bytes.size() - head))
        return std::nullopt;

    QDataStream in(QByteArray::fromRawData(bytes.constData() + head, bytes.size() - head));
    in.setVersion(QDataStream::Qt_6_0);
    StoredHistory stored;
    quint32 undo = 0;
    quint32 redo = 0;
    in >> stored.fingerprint >> undo >> redo;
    constexpr quint32 most = PlaylistHistory::mostChanges;
    QList<PlaylistChange> undoChanges;
    QList<PlaylistChange> redoChanges;
    if (in.status() != QDataStream::Ok || undo > most || redo > most || !readChanges(in, undo, undoChanges) ||
        !readChanges(in, redo, redoChanges) || !in.atEnd())
        return std::nullopt;
    stored.history = PlaylistHistory::fromChanges(std::move(undoChanges), std::move(redoChanges));
    return stored;
}
