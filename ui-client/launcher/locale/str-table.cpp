#include "locale/str-table.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTranslator>

#include "locale/varnex-locale.h"
#include "str-table-rows.h"

const char* StrTable::stab[StrTable::kRowCount];
const char* StrTable::ktab[StrTable::kRowCount];

void StrTable::InitStrTable()
{
    for (int id = 0; id < kRowCount; ++id) {
        ktab[id] = kStrTableRows[id][0];
        stab[id] = kStrTableRows[id][1];
    }
}

QString StrTable::LoadStr(int id)
{
    // Callers pass only ids of existing rows; a stray id must not read past
    // the table, and an empty text is the least surprising thing to show.
    if (id < 0 || id >= kRowCount || stab[id] == nullptr) {
        return QString();
    }
    QString text = QCoreApplication::translate("global", stab[id], nullptr, -1);
    // Line breaks and tabs are stored as escapes so that every row and every
    // catalogue message stays on one line of its source file.
    text.replace("\\n", "\n");
    text.replace("\\t", "\t");
    return text;
}

int StrTable::LookupStrID(QString key)
{
    const QByteArray local = key.toLocal8Bit();
    for (int id = 0; id < kRowCount; ++id) {
        if (qstricmp(local.constData(), ktab[id]) == 0) {
            return id;
        }
    }
    return -1;
}

bool InstallCatalogue(QTranslator& translator)
{
    const QString path = ":/" + VarnexLocale::getInstance()->getDefaultLanguage() + ".qm";
    translator.load(path);
    if (translator.isEmpty()) {
        return false;
    }
    QCoreApplication::installTranslator(&translator);
    return true;
}
