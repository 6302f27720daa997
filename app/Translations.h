#pragma once

#include <QTranslator>

/// Translates the launcher's texts into the user's language while it lives, and Qt's texts if Qt's catalogue
/// is installed. All texts stay English if the launcher has no catalogue for the user's language.
class Translations
{
public:
    /// Chooses the language from the locale environment variables. Needs the application object.
    Translations();

private:
    QTranslator m_qt;
    QTranslator m_launcher;
};
