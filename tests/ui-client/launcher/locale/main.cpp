#include <clocale>
#include <cstdio>
#include <cstring>

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTranslator>
#include <gtest/gtest.h>

#include "startup-child.h"
#include "str-table.h"
#include "varnex-locale.h"

namespace {

// The launcher's start-up steps that concern the language, in their order.
int StartupChild(int argc, char** argv)
{
    setlocale(LC_ALL, "");
    qInitResources_texts();
    QCoreApplication app(argc, argv);
    QTranslator translator;
    const bool installed = InstallCatalogue(translator);
    StrTable::InitStrTable();

    QStringList lines;
    lines << VarnexLocale::getInstance()->getDefaultLanguage()
          << (installed ? "installed" : "not installed")
          << StrTable::LoadStr(443) << StrTable::LoadStr(456) << StrTable::LoadStr(457);
    fputs(lines.join('\n').toUtf8().constData(), stdout);
    fputs("\n", stdout);
    return 0;
}

}  // namespace

StartupResult RunStartupChild(const QString& locale)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : env.keys()) {
        if (name.startsWith("LC_") || name == "LANG" || name == "LANGUAGE") {
            env.remove(name);
        }
    }
    env.insert("LC_ALL", locale);

    QProcess child;
    child.setProcessEnvironment(env);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), QStringList() << kStartupChildFlag);
    StartupResult result;
    if (!child.waitForFinished(30000) || child.exitStatus() != QProcess::NormalExit) {
        child.kill();
        child.waitForFinished();
        return result;
    }
    result.exitCode = child.exitCode();
    result.lines = QString::fromUtf8(child.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    return result;
}

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], kStartupChildFlag) == 0) {
        return StartupChild(argc, argv);
    }
    QCoreApplication app(argc, argv);
    qInitResources_texts();
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
