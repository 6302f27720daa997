#include "app/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace {

const QLatin1String catalogueDirectory(":/translations");
const QLatin1String cataloguePrefix("corvix_");

/// The catalogues that are compiled in, by what follows the prefix: "de", "zh_CN".
QStringList catalogues()
{
    QStringList names;
    const QStringList files = QDir(catalogueDirectory).entryList({cataloguePrefix + QLatin1String("*.qm")});
    for (const QString &file : files)
        names.append(file.section(QLatin1Char('.'), 0, 0).mid(cataloguePrefix.size()));
    return names;
}

/// The catalogue for a language, whatever the country; empty when there is none. The script has to agree,
/// too: simplified Chinese is for Singapore and not for Taiwan.
QString catalogueFor(const QLocale &wanted)
{
    const QStringList names = catalogues();
    for (const QString &name : names) {
        const QLocale offered(name);
        if (offered.language() == wanted.language() && offered.script() == wanted.script())
            return name;
    }
    return {};
}

/// The catalogue of the first language that the user wants and we have; empty for English.
QString catalogueOfTheUser()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return {}; // As elsewhere, LANGUAGE says nothing in the C locale.
    const QStringList languages = system.uiLanguages();
    for (const QString &language : languages) {
        const QLocale wanted(language);
        if (wanted.language() == QLocale::English)
            return {}; // What the sources speak: a language that comes after it is not asked for.
        QString name = catalogueFor(wanted);
        if (!name.isEmpty())
            return name;
    }
    return {};
}

} // namespace

Translations::Translations()
{
    const QString name = catalogueOfTheUser();
    if (name.isEmpty())
        return; // Qt's texts stay English as well: a window in two languages helps nobody.
    if (m_qt.load(QLatin1String("qtbase_") + name, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    // The one installed last is asked first.
    if (m_launcher.load(cataloguePrefix + name, catalogueDirectory))
        QCoreApplication::installTranslator(&m_launcher);
}
