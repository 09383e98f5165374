// The language chosen for a system locale, and the string table with its
// twenty compiled-in catalogues.
#include <gtest/gtest.h>

#include <clocale>

#include <QCoreApplication>
#include <QProcess>
#include <QTranslator>

#include "locale/str-table.h"
#include "locale/varnex-locale.h"

TEST(Locale, SystemLocaleChoosesTheLanguageAndItsCatalogue)
{
    const char* const rows[][2] = {
        {"de_DE.ISO-8859-1", "ger Nimbulo Pelora ist bereit."},
        {"fr_FR@euro", "fre Nimbulo Pelora est prêt."},
        {"pt_BR", "ptb O Nimbulo Pelora está pronto."},
        {"pt_PT.UTF-8", "ptg Nimbulo Pelora pronta."},
        {"zh_TW.Big5", "cht Nimbulo Pelora 準備完成"},
        {"zh_HK", "cht Nimbulo Pelora 準備完成"},
        {"nn_NO", "nor Nimbulo Pelora er klar."},
        {"zh_CN.GB18030", "chs Nimbulo Pelora 已就绪。"},
        {"ja_JP.eucJP", "jpn Nimbulo Pelora は準備完了です。"},
        {"sr_RS@latin", "enu Nimbulo Pelora is ready."},
        {"C", "enu Nimbulo Pelora is ready."},
        {"nb_NO.UTF-8", "nor Nimbulo Pelora er klar."},
    };
    // The launcher's start under LC_ALL=locale and no other locale variable:
    // the code chosen and string 456 from the catalogue installed for it.
    for (const auto& row : rows) {
        QProcess child;
        child.setEnvironment({QString("LC_ALL=") + row[0]});
        child.start(QCoreApplication::applicationFilePath(), {"--child"});
        child.waitForFinished(30000);
        EXPECT_EQ(row[1], child.readAllStandardOutput().toStdString()) << row[0];
    }
}

TEST(Locale, EveryCatalogueTranslatesEveryTextAndEveryKeyIsFound)
{
    for (const char* code : {"chs", "cht", "csy", "dan", "enu", "fre", "ger", "hun", "ita", "jpn",
                             "krn", "nld", "nor", "plk", "ptb", "ptg", "rus", "spn", "sve", "trk"}) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(QString(":/") + code + ".qm")) << code;
        for (int id = 0; id < StrTable::kRowCount; ++id)
            EXPECT_FALSE(translator.translate("global", StrTable::stab[id]).isEmpty())
                << code << " lacks " << id;
    }
    for (int id = 0; id < StrTable::kRowCount; ++id)
        EXPECT_EQ(id, StrTable::LookupStrID(QString(StrTable::ktab[id]).toUpper())) << "the key of " << id;
    EXPECT_TRUE(StrTable::LookupStrID("no such key") == -1 && StrTable::LoadStr(255).contains(".\nYour"));
}

int main(int argc, char** argv)
{
    qInitResources_texts();
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    if (argc > 1 && QByteArray(argv[1]) == "--child") {
        setlocale(LC_ALL, "");
        QTranslator translator;
        InstallCatalogue(translator);
        printf("%s", (VarnexLocale::getInstance()->getDefaultLanguage() + " " + StrTable::LoadStr(456))
                         .toUtf8()
                         .constData());
        return 0;
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
