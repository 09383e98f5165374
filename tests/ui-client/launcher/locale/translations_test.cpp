// Completeness of the translated catalogues: what a translator can get wrong
// without the build noticing.
#include <set>

#include <QByteArray>
#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QTranslator>
#include <gtest/gtest.h>

#include "str-table.h"

namespace {

const char* const kTranslated[] = {
    "chs", "cht", "csy", "dan", "fre", "ger", "hun", "ita", "jpn", "krn",
    "nld", "nor", "plk", "ptb", "ptg", "rus", "spn", "sve", "trk",
};

std::set<QByteArray> DistinctTexts()
{
    std::set<QByteArray> texts;
    for (int id = 0; id < StrTable::kRowCount; ++id)
        texts.insert(QByteArray(StrTable::stab[id]));
    return texts;
}

// "%1" and "%2" as a set: a translation may move them, never lose or add one.
std::set<QString> Placeholders(const QString& text)
{
    std::set<QString> found;
    QRegularExpressionMatchIterator it = QRegularExpression("%[0-9]").globalMatch(text);
    while (it.hasNext())
        found.insert(it.next().captured(0));
    return found;
}

class TranslatedCatalogue : public ::testing::TestWithParam<const char*> {};

TEST_P(TranslatedCatalogue, TranslatesEveryTextAndKeepsItsPlaceholders)
{
    const QString code = GetParam();
    QTranslator translator;
    ASSERT_TRUE(translator.load(":/" + code + ".qm")) << code.toStdString();

    const std::set<QByteArray> texts = DistinctTexts();
    int identical = 0;
    for (const QByteArray& source : texts) {
        const QString english = QString::fromUtf8(source);
        const QString translated = translator.translate("global", source.constData());
        SCOPED_TRACE(code.toStdString() + ": " + source.toStdString());
        // An untranslated or dropped message comes back empty from the catalogue.
        ASSERT_FALSE(translated.isEmpty());
        EXPECT_EQ(Placeholders(english), Placeholders(translated));
        // Line breaks and tabs are written as backslash sequences in the texts.
        EXPECT_EQ(english.count("\\n"), translated.count("\\n")) << translated.toStdString();
        EXPECT_EQ(english.count("\\t"), translated.count("\\t")) << translated.toStdString();
        if (translated == english)
            ++identical;
    }
    // Brand names and words such as "OK" may stay as they are; little else.
    EXPECT_LE(identical * 100, static_cast<int>(texts.size()) * 5)
        << code.toStdString() << " leaves " << identical << " of " << texts.size() << " texts in English";
}

TEST_P(TranslatedCatalogue, SourceHasNoUnfinishedMessage)
{
    // lrelease drops unfinished messages, so they show in English at run time.
    const QString path = QString(NIMBULO_SOURCE_DIR) + "/ui-client/launcher/translations/" + GetParam() + ".ts";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    const QByteArray ts = file.readAll();
    EXPECT_FALSE(ts.contains("type=\"unfinished\"")) << path.toStdString();
    EXPECT_FALSE(ts.contains("<translation></translation>")) << path.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Catalogues, TranslatedCatalogue, ::testing::ValuesIn(kTranslated));

}  // namespace
