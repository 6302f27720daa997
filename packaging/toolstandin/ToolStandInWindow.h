#pragma once

#include <QWidget>

class QGridLayout;

/// Shows which tool was started and how.
class ToolStandInWindow : public QWidget
{
public:
    /// The file name of program, the path that was started, identifies the tool.
    explicit ToolStandInWindow(const QString &program, QWidget *parent = nullptr);

    /// Returns the configured name of the tool with this executable, or the file name if no tool has it.
    static QString toolName(const QString &program);

private:
    void addRow(QGridLayout *facts, const QString &label, const QString &value);
};
