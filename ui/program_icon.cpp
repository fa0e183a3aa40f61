#include "ui/program_icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <png.h>

using namespace Qt::StringLiterals;

namespace {

using Pictures = QList<QImage>;

constexpr auto suffix = ".png"_L1;

/// By the library that the toolkit reads it with, too. The toolkit's own reader looks for image plug-ins on
/// the disk first, and all else that has to do with plug-ins waits for it.
QImage readPng(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    png_image header = {};
    header.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&header, bytes.constData(), static_cast<size_t>(bytes.size())))
        return {};
    header.format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    QImage picture(static_cast<int>(header.width), static_cast<int>(header.height), QImage::Format_ARGB32);
    if (picture.isNull() ||
        !png_image_finish_read(&header, nullptr, picture.bits(),
                               static_cast<png_int_32>(picture.bytesPerLine()), nullptr)) {
        png_image_free(&header);
        return {};
    }
    return picture;
}

QString pathOfSize(const QString &path, const QSize &size)
{
    return path.chopped(suffix.size()) + u'-' + QString::number(size.width()) + suffix;
}

Pictures picturesOf(const QString &path, const QList<QSize> &sizes)
{
    Pictures pictures;
    for (const QSize &size : sizes) {
        const QImage ready = readPng(pathOfSize(path, size));
        const QImage picture = ready.isNull() ? readPng(path) : ready;
        pictures.append(picture.isNull() || picture.size() == size
                            ? picture
                            : picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    return pictures;
}

class ResourceEngine final : public QIconEngine
{
public:
    ResourceEngine(const QString &path, const QList<QSize> &sizes)
        : m_sizes(sizes)
        , m_pictures(picturesOf(path, sizes))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(rect, pictureFor(rect.size()));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const QImage &picture = pictureFor(size);
        const QSize fitting = actualSize(size, mode, state);
        return QPixmap::fromImage(picture.size() == fitting ? picture
                                                            : picture.scaled(fitting, Qt::KeepAspectRatio,
                                                                             Qt::SmoothTransformation));
    }

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        return m_sizes.last().scaled(size, Qt::KeepAspectRatio).boundedTo(m_sizes.last());
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return m_sizes; }
    bool isNull() override { return false; }
    QIconEngine *clone() const override { return new ResourceEngine(*this); }

private:
    /// The smallest that need not be enlarged.
    const QImage &pictureFor(const QSize &size) const
    {
        qsizetype i = 0;
        while (i + 1 < m_sizes.size() && m_sizes.at(i).width() < size.width())
            ++i;
        return m_pictures.at(i);
    }

    QList<QSize> m_sizes; ///< smallest first
    Pictures m_pictures;
};

} // namespace

QIcon programIcon(const QString &path, const QList<QSize> &sizes)
{
    return QIcon(new ResourceEngine(path, sizes));
}
