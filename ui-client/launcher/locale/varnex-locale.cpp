#include "locale/varnex-locale.h"

#include <QLocale>

VarnexLocale* VarnexLocale::getInstance()
{
    static VarnexLocale instance;
    return &instance;
}

VarnexLocale::VarnexLocale()
{
    // Portuguese and Chinese are missing on purpose: their code depends on
    // the country as well (getPortugueseLanguage, getChineseLanguage).
    setLanguageMap("en", "enu");
    setLanguageMap("ja", "jpn");
    setLanguageMap("de", "ger");
    setLanguageMap("ko", "krn");
    setLanguageMap("fr", "fre");
    setLanguageMap("it", "ita");
    setLanguageMap("es", "spn");
    setLanguageMap("ru", "rus");
    setLanguageMap("da", "dan");
    setLanguageMap("no", "nor");
    setLanguageMap("nb", "nor");
    setLanguageMap("nn", "nor");
    setLanguageMap("sv", "sve");
    setLanguageMap("nl", "nld");
    setLanguageMap("pl", "plk");
    setLanguageMap("hu", "hun");
    setLanguageMap("tr", "trk");
    setLanguageMap("cs", "csy");
    defaultLanguage = "enu";
}

QString VarnexLocale::getDefaultLanguage()
{
    return getLanguageByLocale(QLocale::system().name().toLower());
}

QString VarnexLocale::getLanguageByLocale(const QString& locale)
{
    const QString language = locale.section('_', 0, 0);
    if (language == "pt") {
        return getPortugueseLanguage(locale);
    }
    if (language == "zh") {
        return getChineseLanguage(locale);
    }
    // value() instead of operator[] so that an unknown language adds no entry.
    return languageMap.value(language, defaultLanguage);
}

QString VarnexLocale::getPortugueseLanguage(const QString& locale)
{
    if (locale == "pt" || locale == "pt_pt") {
        return "ptg";
    }
    return "ptb";
}

QString VarnexLocale::getChineseLanguage(const QString& locale)
{
    if (locale == "zh_tw" || locale == "zh_hk" || locale == "zh_mo") {
        return "cht";
    }
    return "chs";
}

void VarnexLocale::setLanguageMap(QString locale, QString language)
{
    languageMap.insert(locale, language);
}
