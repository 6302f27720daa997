#pragma once

#include <QWidget>

class QGridLayout;

/// Says which tool was asked for and how it was started, so that a start can be seen without the real tool.
class ToolStandInWindow : public QWidget
{
public:
    /// The program's path as it was started names the tool.
    explicit ToolStandInWindow(const QString &program, QWidget *parent = nullptr);

    /// The configured name of the tool with this executable, or the executable's file name.
    static QString toolName(const QString &program);

private:
    void addRow(QGridLayout *facts, const QString &label, const QString &value);
};
