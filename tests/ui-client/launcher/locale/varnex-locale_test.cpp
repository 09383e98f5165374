#include <QString>
#include <gtest/gtest.h>

#include "startup-child.h"
#include "varnex-locale.h"

namespace {

struct LocaleRow {
    const char* locale;
    const char* code;
};

// Locale names as a system reports them, with the code each must give.
const LocaleRow kLocales[] = {
    {"de_DE", "ger"}, {"nb_NO", "nor"}, {"nn_NO", "nor"}, {"en_GB", "enu"},
    {"en_US", "enu"}, {"pt_PT", "ptg"}, {"pt_BR", "ptb"}, {"zh_TW", "cht"},
    {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"zh_CN", "chs"}, {"zh_SG", "chs"},
    {"fi_FI", "enu"}, {"ar_EG", "enu"}, {"ja_JP", "jpn"}, {"ko_KR", "krn"},
    {"fr_CA", "fre"}, {"it_IT", "ita"}, {"es_MX", "spn"}, {"ru_RU", "rus"},
    {"da_DK", "dan"}, {"sv_SE", "sve"}, {"nl_BE", "nld"}, {"pl_PL", "plk"},
    {"hu_HU", "hun"}, {"tr_TR", "trk"}, {"cs_CZ", "csy"},
};

TEST(VarnexLocale, MapsLowerCaseLocaleNames)
{
    VarnexLocale* locale = VarnexLocale::getInstance();
    for (const LocaleRow& row : kLocales) {
        EXPECT_EQ(locale->getLanguageByLocale(QString(row.locale).toLower()), row.code) << row.locale;
    }
}

TEST(VarnexLocale, NamesWithoutCountryAreLookedUpWhole)
{
    // A bare "pt" is Portugal's, a bare "zh" simplified Chinese; a name
    // without "_" must not lose its last letters to the split.
    const LocaleRow rows[] = {
        {"pt", "ptg"}, {"zh", "chs"}, {"sv", "sve"}, {"de", "ger"}, {"no", "nor"},
        {"fi", "enu"}, {"", "enu"}, {"c", "enu"},
    };
    for (const LocaleRow& row : rows) {
        EXPECT_EQ(VarnexLocale::getInstance()->getLanguageByLocale(row.locale), row.code) << row.locale;
    }
}

TEST(VarnexLocale, ComparisonsAreCaseSensitive)
{
    // Only getDefaultLanguage lower-cases; upper-case names passed directly
    // fall through to the "every other value" branches.
    const LocaleRow rows[] = {
        {"pt_PT", "ptb"}, {"PT_pt", "enu"}, {"zh_TW", "chs"}, {"zh_hk_x", "chs"},
        {"DE_de", "enu"}, {"DE", "enu"}, {"pt_pt_x", "ptb"},
    };
    for (const LocaleRow& row : rows) {
        EXPECT_EQ(VarnexLocale::getInstance()->getLanguageByLocale(row.locale), row.code) << row.locale;
    }
}

TEST(VarnexLocale, RegionalRulesDependOnTheWholeName)
{
    VarnexLocale* locale = VarnexLocale::getInstance();
    EXPECT_EQ(locale->getPortugueseLanguage("pt"), "ptg");
    EXPECT_EQ(locale->getPortugueseLanguage("pt_pt"), "ptg");
    EXPECT_EQ(locale->getPortugueseLanguage("pt_br"), "ptb");
    EXPECT_EQ(locale->getPortugueseLanguage("pt_ao"), "ptb");
    EXPECT_EQ(locale->getChineseLanguage("zh_tw"), "cht");
    EXPECT_EQ(locale->getChineseLanguage("zh_hk"), "cht");
    EXPECT_EQ(locale->getChineseLanguage("zh_mo"), "cht");
    EXPECT_EQ(locale->getChineseLanguage("zh_cn"), "chs");
    EXPECT_EQ(locale->getChineseLanguage("zh"), "chs");
}

TEST(VarnexLocale, IsOneInstance)
{
    EXPECT_EQ(VarnexLocale::getInstance(), VarnexLocale::getInstance());
}

TEST(VarnexLocale, SetLanguageMapAddsAndReplaces)
{
    // "xx" is no real language, so the shared instance stays usable.
    VarnexLocale* locale = VarnexLocale::getInstance();
    EXPECT_EQ(locale->getLanguageByLocale("xx_yy"), "enu");
    locale->setLanguageMap("xx", "ger");
    EXPECT_EQ(locale->getLanguageByLocale("xx_yy"), "ger");
    locale->setLanguageMap("xx", "fre");
    EXPECT_EQ(locale->getLanguageByLocale("xx"), "fre");
    // Portuguese keeps its own rule even when the map has an entry.
    locale->setLanguageMap("pt", "ger");
    EXPECT_EQ(locale->getLanguageByLocale("pt_br"), "ptb");
}

TEST(VarnexLocale, DefaultLanguageFollowsTheSystemLocale)
{
    // The system locale is read from LC_ALL, with Qt's spelling of the name
    // (upper-case country), so this also covers the lower-casing.
    const LocaleRow rows[] = {
        {"de_DE.UTF-8", "ger"}, {"nb_NO.UTF-8", "nor"}, {"nn_NO.UTF-8", "nor"},
        {"en_GB.UTF-8", "enu"}, {"pt_PT.UTF-8", "ptg"}, {"pt_BR.UTF-8", "ptb"},
        {"zh_TW.UTF-8", "cht"}, {"zh_HK.UTF-8", "cht"}, {"zh_MO.UTF-8", "cht"},
        {"zh_CN.UTF-8", "chs"}, {"fi_FI.UTF-8", "enu"}, {"ar_EG.UTF-8", "enu"},
        {"sv_SE.UTF-8", "sve"}, {"C", "enu"},
    };
    for (const LocaleRow& row : rows) {
        const StartupResult result = RunStartupChild(row.locale);
        ASSERT_EQ(result.exitCode, 0) << row.locale;
        ASSERT_FALSE(result.lines.isEmpty()) << row.locale;
        EXPECT_EQ(result.lines[0], row.code) << row.locale;
    }
}

}  // namespace
