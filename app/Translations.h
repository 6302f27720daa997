#pragma once

#include <QTranslator>

/// Shows texts in the user's language while it lives: the launcher's, and Qt's own where its catalogues are
/// installed. They stay English for a user whose language we do not speak.
class Translations
{
public:
    /// Reads what the environment says of the language, once; needs the application.
    Translations();

private:
    QTranslator m_qt;
    QTranslator m_launcher;
};
