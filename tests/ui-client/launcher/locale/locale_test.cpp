// The language chosen for a system locale, and the string table with its
// twenty compiled-in catalogues.
#include <gtest/gtest.h>

#include <clocale>

#include <QCoreApplication>
#include <QProcess>
#include <QTranslator>

#include "str-table.h"
#include "varnex-locale.h"

// The launcher's start under LC_ALL=locale and no other locale variable:
// the code chosen and string 456 from the catalogue installed for it.
static std::string StartUnder(const QString& locale)
{
    QProcessEnvironment env;
    env.insert("LC_ALL", locale);
    QProcess child;
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {"--child"});
    child.waitForFinished(30000);
    return child.readAllStandardOutput().toStdString();
}

TEST(Locale, SystemLocaleChoosesTheLanguageAndItsCatalogue)
{
    const char* const rows[][2] = {
        {"de_DE.ISO-8859-1", "ger Nimbulo Pelora ist bereit."}, {"fr_FR@euro", "fre Nimbulo Pelora est prêt."},
        {"pt_BR", "ptb O Nimbulo Pelora está pronto."}, {"pt_PT.UTF-8", "ptg Nimbulo Pelora pronta."},
        {"zh_TW.Big5", "cht Nimbulo Pelora 準備完成"}, {"zh_HK", "cht Nimbulo Pelora 準備完成"},
        {"zh_CN.GB18030", "chs Nimbulo Pelora 已就绪。"}, {"nn_NO", "nor Nimbulo Pelora er klar."},
        {"sv_SE", "sve Nimbulo Pelora är klar."}, {"ja_JP.eucJP", "jpn Nimbulo Pelora は準備完了です。"},
        {"sr_RS@latin", "enu Nimbulo Pelora is ready."}, {"fi_FI.UTF-8", "enu Nimbulo Pelora is ready."},
        {"C", "enu Nimbulo Pelora is ready."}, {"POSIX", "enu Nimbulo Pelora is ready."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row[1], StartUnder(row[0])) << row[0];
}

TEST(Locale, EveryCatalogueTranslatesEveryTextAndTheLauncherRowsResolve)
{
    for (const char* code : {"chs", "cht", "csy", "dan", "enu", "fre", "ger", "hun", "ita", "jpn", "krn", "nld",
                             "nor", "plk", "ptb", "ptg", "rus", "spn", "sve", "trk"}) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(QString(":/") + code + ".qm")) << code;
        for (int id = 0; id < StrTable::kRowCount; ++id)
            EXPECT_FALSE(translator.translate("global", StrTable::stab[id]).isEmpty()) << code << " lacks " << id;
    }
    EXPECT_EQ("Nimbulo Pelora", StrTable::LoadStr(443));
    EXPECT_EQ("Nimbulo Pelora is ready.", StrTable::LoadStr(456));
    EXPECT_EQ("Nimbulo Pelora is initializing...", StrTable::LoadStr(457));
    EXPECT_EQ("Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?", StrTable::LoadStr(307));
    EXPECT_EQ(443, StrTable::LookupStrID("APP_NAME"));
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
        printf("%s", (VarnexLocale::getInstance()->getDefaultLanguage() + " " + StrTable::LoadStr(456)).toUtf8().constData());
        return 0;
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
