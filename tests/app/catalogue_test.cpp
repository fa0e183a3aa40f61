#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString context;
    QString source;
    QString text;
    bool finished = true;
};

QList<Row> readCatalogue(const QString &path)
{
    QFile file(path);
    QList<Row> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    QXmlStreamReader xml(&file);
    Row row;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1) {
            row.context = xml.readElementText();
        } else if (xml.name() == "source"_L1) {
            row.source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            row.finished = !xml.attributes().hasAttribute("type"_L1);
            row.text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            rows.append(row);
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return rows;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression form(u"%\\d"_s);
    QStringList found;
    for (auto match = form.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

QStringList catalogues()
{
    const QDir directory(QStringLiteral(KELP_SOURCE_DIR "/i18n"));
    QStringList paths;
    for (const QString &name : directory.entryList({u"kelp_*.ts"_s}))
        paths.append(directory.filePath(name));
    return paths;
}

} // namespace

TEST(Catalogue, EnglishIsThere)
{
    EXPECT_FALSE(catalogues().filter(u"kelp_en.ts"_s).isEmpty());
}

TEST(Catalogue, EveryRowHasATextWithTheSourcesPlaceholders)
{
    for (const QString &path : catalogues()) {
        const QList<Row> rows = readCatalogue(path);
        EXPECT_FALSE(rows.isEmpty()) << qPrintable(path);
        for (const Row &row : rows) {
            EXPECT_TRUE(row.finished && !row.text.isEmpty())
                << qPrintable(path) << ": " << qPrintable(row.context) << ": " << qPrintable(row.source);
            EXPECT_EQ(placeholders(row.text), placeholders(row.source))
                << qPrintable(row.source) << " / " << qPrintable(row.text);
        }
    }
}

TEST(Catalogue, EnglishHoldsNoChinese)
{
    static const QRegularExpression chinese(u"\\p{Han}"_s);
    for (const Row &row : readCatalogue(QStringLiteral(KELP_SOURCE_DIR "/i18n/kelp_en.ts")))
        EXPECT_FALSE(row.text.contains(chinese)) << qPrintable(row.text);
}
