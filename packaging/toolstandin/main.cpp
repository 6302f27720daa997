#include "packaging/toolstandin/ToolStandInWindow.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>

int main(int argc, char *argv[])
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    QApplication application(argc, argv);

    QFile style(QStringLiteral(":/styles/style.qss"));
    if (style.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(style.readAll()));
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, QColor(QStringLiteral("#0f1419")));
    QApplication::setPalette(palette);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/orvelle-logo.ico")));

    // The first argument contains the tool's name. applicationFilePath() would resolve the link and lose the
    // name.
    ToolStandInWindow window(QApplication::arguments().constFirst());
    window.show();
    return QApplication::exec();
}
