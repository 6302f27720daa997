#pragma once

#include <QWidget>

class QGridLayout;

/// Shows which tool was started and how.
class ToolStandInWindow : public QWidget
{
public:
    /// `program` is the path by which the program was started. Its file name identifies the tool.
    explicit ToolStandInWindow(const QString &program, QWidget *parent = nullptr);

    /// Returns the configured name of the tool with this executable, or the file name if there is no such
    /// tool.
    static QString toolName(const QString &program);

private:
    void addRow(QGridLayout *facts, const QString &label, const QString &value);
};
