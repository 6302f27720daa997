#pragma once

#include <QTranslator>

/// Translates the program's strings into the user's language for the lifetime of this object. Qt's strings
/// are translated too if Qt's catalogue is installed. All strings stay English if the program has no
/// catalogue for the user's language.
class Translations
{
public:
    /// Chooses the language from the locale environment variables. The application object has to exist.
    /// @param prefix The beginning of the names of the program's catalogues, for example "corvix".
    explicit Translations(const QString &prefix);

private:
    QTranslator m_qt;
    QTranslator m_program;
};
