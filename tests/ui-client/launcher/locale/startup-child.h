// The test program re-runs itself with this first argument to see what the
// launcher's start-up does under a given system locale: the system locale is
// read from the environment once per process, so each locale needs its own.
#ifndef NIMBULO_TEST_STARTUP_CHILD_H
#define NIMBULO_TEST_STARTUP_CHILD_H

#include <QString>
#include <QStringList>

inline constexpr char kStartupChildFlag[] = "--locale-startup-child";

// What the child printed: language code, "installed" or "not installed", and
// the texts of rows 443, 456 and 457.
struct StartupResult {
    int exitCode = -1;
    QStringList lines;
};

// Runs the child with LC_ALL set to locale and every other locale variable
// removed from its environment.
StartupResult RunStartupChild(const QString& locale);

#endif
