#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

/// What a tool remembers between two starts, in a file of its own. A damaged file is set aside, and a place
/// that cannot be written is no error: the tool then forgets.
class ToolSettings
{
public:
    /// Reads the settings of the user. If the file is damaged, it is renamed to "….damaged", and the
    /// settings are empty.
    /// @param tool The name of the tool.
    explicit ToolSettings(const QString &tool);
    ToolSettings(const QString &tool, const QString &directory);

    /// Returns the value, or the default if there is none of this type.
    template <typename Value>
    Value value(const QString &key, const Value &byDefault) const;

    template <typename Value>
    void setValue(const QString &key, const Value &value);

    void remove(const QString &key) { m_settings->remove(key); }

    /// Writes the file now; otherwise the destructor writes it. Returns false if that is not possible.
    bool save();

    /// Returns where a damaged file is now; empty if the file was not damaged.
    QString damagedFile() const { return m_damagedFile; }

private:
    std::unique_ptr<QSettings> m_settings;
    QString m_damagedFile;
};

template <typename Value>
Value ToolSettings::value(const QString &key, const Value &byDefault) const
{
    QVariant value = m_settings->value(key);
    // A text in the file can become a number; convert() returns false if it is none.
    return value.isValid() && value.convert(qMetaTypeId<Value>()) ? value.value<Value>() : byDefault;
}

template <typename Value>
void ToolSettings::setValue(const QString &key, const Value &value)
{
    m_settings->setValue(key, QVariant::fromValue(value));
}
