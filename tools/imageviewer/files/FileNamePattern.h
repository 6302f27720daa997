#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

/// What the placeholders of a file name stand for.
struct FileNameValues
{
    QString camera; ///< {camera}: name or model.
    QString serialNumber; ///< {serial}
    QString pixelFormat; ///< {format}
    QDateTime time; ///< {date} and {time}
    std::uint64_t frameId = 0; ///< {frame}
};

/// A file name with placeholders, for example "{camera}-{date}-{number:4}". The values of the placeholders
/// cannot break the name: characters that a file name must not contain are replaced.
class FileNamePattern
{
    Q_DECLARE_TR_FUNCTIONS(FileNamePattern)

public:
    explicit FileNamePattern(const QString &pattern);

    /// Returns why the pattern cannot be used, for people, as a part of a sentence; empty if it
    /// can.
    QString problem() const { return m_problem; }

    /// Returns the name without extension. A pattern without {number} has the number at its end, from the
    /// second file on.
    /// @param number Counts from 1.
    QString name(const FileNameValues &values, unsigned number) const;

    /// Returns the smallest number from `first` on whose file does not exist, so that no file is replaced.
    /// @param isTaken Returns true if there is a file of this name.
    unsigned freeNumber(const FileNameValues &values, unsigned first,
        const std::function<bool(const QString &name)> &isTaken) const;

    /// Returns the placeholders with a sentence about each, for a tool tip.
    static QString help();

    static QString defaultPattern();

private:
    struct Part
    {
        QString text; // The text itself, or the name of a placeholder.
        bool isPlaceholder = false;
        int digits = 0; // The minimum number of digits of {number}.
    };

    void addPlaceholder(const QString &text);

    QVector<Part> m_parts;
    bool m_hasNumber = false;
    QString m_problem;
};
