#pragma once

#include <QTranslator>

/// Translates the launcher's strings into the user's language for the lifetime of this object. Qt's strings
/// are translated too if Qt's catalogue is installed. All strings stay English if the launcher has no
/// catalogue for the user's language.
class Translations
{
public:
    /// Chooses the language from the locale environment variables. The application object has to exist.
    Translations();

private:
    QTranslator m_qt;
    QTranslator m_launcher;
};
