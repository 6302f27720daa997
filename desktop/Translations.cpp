#include "desktop/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace {

constexpr QLatin1String catalogueDirectory(":/translations");

/// Returns the locale names of the catalogues of a program that are compiled in, such as "de" and "zh_CN".
QStringList catalogues(const QString &prefix)
{
    QStringList names;
    const QStringList files = QDir(catalogueDirectory).entryList({prefix + QLatin1String("_*.qm")});
    for (const QString &file : files)
        names.append(file.section(QLatin1Char('.'), 0, 0).mid(prefix.size() + 1));
    return names;
}

/// Returns the name of the catalogue whose language and script match; empty if there is no such catalogue.
/// The country does not matter, but the script does: the simplified Chinese catalogue is used for Singapore,
/// but not for Taiwan.
QString catalogueFor(const QString &prefix, const QLocale &wanted)
{
    const QStringList names = catalogues(prefix);
    for (const QString &name : names) {
        const QLocale offered(name);
        if (offered.language() == wanted.language() && offered.script() == wanted.script())
            return name;
    }
    return {};
}

/// Returns the name of the catalogue for the first of the user's languages that has a catalogue. The name is
/// empty if no language has a catalogue or if English precedes these languages.
QString userCatalogue(const QString &prefix)
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return {}; // The C locale overrides the variable LANGUAGE, as in gettext.
    const QStringList languages = system.uiLanguages();
    for (const QString &language : languages) {
        const QLocale wanted(language);
        if (wanted.language() == QLocale::English)
            return {}; // The sources are in English, so the languages after English do not matter.
        QString name = catalogueFor(prefix, wanted);
        if (!name.isEmpty())
            return name;
    }
    return {};
}

} // namespace

Translations::Translations(const QString &prefix)
{
    const QString name = userCatalogue(prefix);
    if (name.isEmpty()) {
        // Qt's strings stay English too. Otherwise the window would mix two languages. The catalogue for
        // English contains only the singular and plural forms of strings with numbers.
        if (m_program.load(prefix + QLatin1String("_en"), catalogueDirectory))
            QCoreApplication::installTranslator(&m_program);
        return;
    }
    if (m_qt.load(QLatin1String("qtbase_") + name, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    // Qt first searches the translator that was installed most recently.
    if (m_program.load(prefix + QLatin1Char('_') + name, catalogueDirectory))
        QCoreApplication::installTranslator(&m_program);
}
