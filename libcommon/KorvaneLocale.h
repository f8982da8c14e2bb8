// KorvaneLocale: picks the display language among the compiled-in
// translation catalogues (":/<code>.qm") from the system locale.
#pragma once

#include <QString>
#include <QStringList>

class KorvaneLocale {
public:
    // The code of the display language for the system locale; the fallback
    // code when the locale maps to no code or its catalogue is missing.
    static QString getDefaultLanguage();
    // The same choice for a lower-cased locale name such as "zh_tw" or "pt".
    static QString getLanguageForLocaleName(const QString& qstrLocaleLower);
    // True when the catalogue ":/" + code + ".qm" is among the resources.
    static bool isLanguageInstalled(const QString& code);
    // All codes in ID order.
    static QStringList getSupportedLanguages();
    static QString getStrLanguageFallSafe();
    // The code with that ID, or an empty string for an ID that has none.
    static QString getLanguageAbbrByID(int id);

private:
    // The codes of languages.def in ID order, then a null entry.
    static const char* const grgszLanguages[];
    static const QString qstrLanguageFallSafe;
};
