// VarnexLocale: turns a locale name such as "zh_tw" into the three-letter
// language code that also names the translation catalogue (":/cht.qm").
#ifndef NIMBULO_VARNEX_LOCALE_H
#define NIMBULO_VARNEX_LOCALE_H

#include <QMap>
#include <QString>

class VarnexLocale {
public:
    // The one instance, built on first use.
    static VarnexLocale* getInstance();

    // Code for the system locale, whose name is lower-cased first.
    QString getDefaultLanguage();

    // Code for a lower-case locale name ("de_de", "pt", "zh_hk"); "enu" when
    // the language has no catalogue. Comparisons are case-sensitive.
    QString getLanguageByLocale(const QString& locale);

    // "ptg" for exactly "pt" or "pt_pt", otherwise "ptb".
    QString getPortugueseLanguage(const QString& locale);

    // "cht" for exactly "zh_tw", "zh_hk" or "zh_mo", otherwise "chs".
    QString getChineseLanguage(const QString& locale);

    // Adds or replaces the code of one language part.
    void setLanguageMap(QString locale, QString language);

private:
    VarnexLocale();
    VarnexLocale(const VarnexLocale&) = delete;
    VarnexLocale& operator=(const VarnexLocale&) = delete;

    QMap<QString, QString> languageMap;
    QString defaultLanguage;
};

#endif
