#include "KorvaneLocale.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QtGlobal>
#include <iterator>

namespace {

// Traces name the module rather than __FILE__ so that they read the same
// whichever folder the tree was built in.
const char* const kModule = "libcommon/KorvaneLocale";

} // namespace

// Logs "<module>:<line> <expression>=[<value>]" with the given layout; the
// expression's own spelling serves as the label.
#define KORVANE_TRACE(format, expr) qDebug(format, kModule, __LINE__, #expr, expr)

// Position is the language ID; the null entry ends the table.
const char* const KorvaneLocale::grgszLanguages[] = {
#define CALDERIX_LANGUAGE(code, locale) #code,
#include "languages.def"
#undef CALDERIX_LANGUAGE
    nullptr,
};

const QString KorvaneLocale::qstrLanguageFallSafe = QStringLiteral("enu");

// Returns the code for the system locale; only traces, nothing else changes.
QString KorvaneLocale::getDefaultLanguage()
{
    const QString qstrLocaleLower = QLocale::system().name().toLower();
    KORVANE_TRACE("%s:%d %s=[%s\n] ", qPrintable(qstrLocaleLower));
    QString qstrDef;
    KORVANE_TRACE("%s:%d %s=[%s] ", qPrintable(qstrLocaleLower));
    qstrDef = getLanguageForLocaleName(qstrLocaleLower);
    KORVANE_TRACE("%s:%d %s=[%s] ", qPrintable(qstrDef));
    return qstrDef;
}

// Whole names win over the language part because Chinese script and
// European Portuguese are told apart by the region, not by the language.
QString KorvaneLocale::getLanguageForLocaleName(const QString& qstrLocaleLower)
{
    const QString qstrTraditional[] = {QStringLiteral("zh_tw"), QStringLiteral("zh_hk"),
                                       QStringLiteral("zh_mo"), QString()};
    const QString qstrPortugal[] = {QStringLiteral("pt"), QStringLiteral("pt_pt"), QString()};

    QMap<QString, QString> mapLanguages;
    mapLanguages.insert(QStringLiteral("en"), QStringLiteral("enu"));
    mapLanguages.insert(QStringLiteral("zh"), QStringLiteral("chs"));
    mapLanguages.insert(QStringLiteral("ja"), QStringLiteral("jpn"));
    mapLanguages.insert(QStringLiteral("de"), QStringLiteral("deu"));
    mapLanguages.insert(QStringLiteral("ko"), QStringLiteral("krn"));
    mapLanguages.insert(QStringLiteral("fr"), QStringLiteral("fra"));
    mapLanguages.insert(QStringLiteral("it"), QStringLiteral("ita"));
    mapLanguages.insert(QStringLiteral("es"), QStringLiteral("esn"));
    mapLanguages.insert(QStringLiteral("pt"), QStringLiteral("ptb"));
    mapLanguages.insert(QStringLiteral("ru"), QStringLiteral("rus"));
    mapLanguages.insert(QStringLiteral("da"), QStringLiteral("dan"));
    mapLanguages.insert(QStringLiteral("no"), QStringLiteral("nor"));
    mapLanguages.insert(QStringLiteral("nb"), QStringLiteral("nor"));
    mapLanguages.insert(QStringLiteral("nn"), QStringLiteral("nor"));
    mapLanguages.insert(QStringLiteral("sv"), QStringLiteral("sve"));
    mapLanguages.insert(QStringLiteral("nl"), QStringLiteral("nld"));
    mapLanguages.insert(QStringLiteral("pl"), QStringLiteral("plk"));
    mapLanguages.insert(QStringLiteral("hu"), QStringLiteral("hun"));
    mapLanguages.insert(QStringLiteral("tr"), QStringLiteral("trk"));
    mapLanguages.insert(QStringLiteral("cs"), QStringLiteral("csy"));

    const QString qstrSysLang = qstrLocaleLower.section(QLatin1Char('_'), 0, 0);

    QString qstrDef;
    for (int i = 0; !qstrTraditional[i].isEmpty(); ++i) {
        if (qstrLocaleLower == qstrTraditional[i]) {
            qstrDef = QStringLiteral("cht");
        }
    }
    for (int i = 0; !qstrPortugal[i].isEmpty(); ++i) {
        if (qstrLocaleLower == qstrPortugal[i]) {
            qstrDef = QStringLiteral("ptg");
        }
    }
    if (qstrDef.isEmpty()) {
        qstrDef = mapLanguages.value(qstrSysLang, mapLanguages.value(QStringLiteral("en")));
    }
    if (!isLanguageInstalled(qstrDef)) {
        qstrDef = qstrLanguageFallSafe;
    }
    return qstrDef;
}

bool KorvaneLocale::isLanguageInstalled(const QString& code)
{
    const QString qstrLangFileName = QStringLiteral(":/") + code + QStringLiteral(".qm");
    if (!QFile::exists(qstrLangFileName)) {
        return false;
    }
    KORVANE_TRACE("%s:%d %s=[%s] ", qPrintable(qstrLangFileName));
    return true;
}

QStringList KorvaneLocale::getSupportedLanguages()
{
    QStringList codes;
    for (int i = 0; grgszLanguages[i] != nullptr; ++i) {
        codes << QString::fromLatin1(grgszLanguages[i]);
    }
    return codes;
}

QString KorvaneLocale::getStrLanguageFallSafe()
{
    return qstrLanguageFallSafe;
}

QString KorvaneLocale::getLanguageAbbrByID(int id)
{
    QString code;
    if (id >= 0 && static_cast<size_t>(id) + 1 < std::size(grgszLanguages)) {
        code = QString::fromLatin1(grgszLanguages[id]);
    }
    return code;
}
