#include "ui/program_icon.h"

#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <future>

namespace {

QImage decodedPng(const QString &path)
{
    QImageReader reader(path, QByteArrayLiteral("png"));
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

class ResourceEngine final : public QIconEngine
{
public:
    ResourceEngine(const QString &path, const QSize &size)
        : m_size(size)
        , m_image(std::async(std::launch::async, decodedPng, path).share())
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(rect, m_image.get());
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const QImage &image = m_image.get();
        const QSize fitting = image.size().scaled(size, Qt::KeepAspectRatio).boundedTo(image.size());
        return QPixmap::fromImage(
            image.size() == fitting ? image
                                    : image.scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        return m_size.scaled(size, Qt::KeepAspectRatio).boundedTo(m_size);
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {m_size}; }
    bool isNull() override { return false; }
    QIconEngine *clone() const override { return new ResourceEngine(*this); }

private:
    QSize m_size;
    std::shared_future<QImage> m_image;
};

} // namespace

QIcon programIcon(const QString &path, const QSize &size)
{
    return QIcon(new ResourceEngine(path, size));
}
