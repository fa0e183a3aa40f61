#include "net/remote_page.h"

#include <QFile>

namespace {

constexpr std::string_view tokenMark = "@TOKEN@";

std::string pageText()
{
    QFile file(QStringLiteral(":/net/remote_page.html"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

} // namespace

std::string remotePage(std::string_view token)
{
    static const std::string text = pageText();
    std::string page = text;
    if (const std::size_t at = page.find(tokenMark); at != std::string::npos)
        page.replace(at, tokenMark.size(), token);
    return page;
}
