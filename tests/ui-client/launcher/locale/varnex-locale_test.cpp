#include <QString>
#include <gtest/gtest.h>

#include "varnex-locale.h"

namespace {

// The map and its rules, with names as getDefaultLanguage passes them
// (lower case). Only getDefaultLanguage lower-cases: upper-case names
// passed directly fall through to the "every other value" branches.
TEST(VarnexLocale, GetLanguageByLocale)
{
    const std::pair<const char*, const char*> rows[] = {
        {"de_de", "ger"}, {"nb_no", "nor"}, {"nn_no", "nor"}, {"en_gb", "enu"}, {"en_us", "enu"}, {"pt_pt", "ptg"},
        {"pt_br", "ptb"}, {"zh_tw", "cht"}, {"zh_hk", "cht"}, {"zh_mo", "cht"}, {"zh_cn", "chs"}, {"zh_sg", "chs"},
        {"fi_fi", "enu"}, {"ar_eg", "enu"}, {"ja_jp", "jpn"}, {"ko_kr", "krn"}, {"fr_ca", "fre"}, {"it_it", "ita"},
        {"es_mx", "spn"}, {"ru_ru", "rus"}, {"da_dk", "dan"}, {"sv_se", "sve"}, {"nl_be", "nld"}, {"pl_pl", "plk"},
        {"hu_hu", "hun"}, {"tr_tr", "trk"}, {"cs_cz", "csy"},
        // Without a country: looked up whole, not shortened by the split.
        {"pt", "ptg"}, {"zh", "chs"}, {"sv", "sve"}, {"de", "ger"}, {"no", "nor"}, {"fi", "enu"}, {"", "enu"},
        {"c", "enu"},
        // Case-sensitive comparisons.
        {"pt_PT", "ptb"}, {"PT_pt", "enu"}, {"zh_TW", "chs"}, {"zh_hk_x", "chs"}, {"DE_de", "enu"}, {"DE", "enu"},
        {"pt_pt_x", "ptb"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(VarnexLocale::getInstance()->getLanguageByLocale(row.first), row.second) << row.first;
    VarnexLocale* locale = VarnexLocale::getInstance();
    EXPECT_EQ(locale->getPortugueseLanguage("pt_ao"), "ptb");
    EXPECT_EQ(locale->getChineseLanguage("zh_mo"), "cht");
    EXPECT_EQ(locale->getChineseLanguage("zh"), "chs");
}

TEST(VarnexLocale, SetLanguageMapAddsAndReplaces)
{
    // "xx" is no real language, so the shared instance stays usable.
    VarnexLocale* locale = VarnexLocale::getInstance();
    EXPECT_EQ(locale->getLanguageByLocale("xx_yy"), "enu");
    locale->setLanguageMap("xx", "ger");
    EXPECT_EQ(VarnexLocale::getInstance()->getLanguageByLocale("xx_yy"), "ger") << "not one instance";
    locale->setLanguageMap("xx", "fre");
    EXPECT_EQ(locale->getLanguageByLocale("xx"), "fre");
    // Portuguese keeps its own rule even when the map has an entry.
    locale->setLanguageMap("pt", "ger");
    EXPECT_EQ(locale->getLanguageByLocale("pt_br"), "ptb");
}

}  // namespace
