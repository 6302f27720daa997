#pragma once

#include "app/ApplicationController.h"
#include "sdk/testing/Gate.h"
#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/support/ChildNamed.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/// What the tests of the controller share.
namespace ControllerTest {

/// The window that the living controller has made; null without one.
inline MainWindow *mainWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<MainWindow *>(widget))
            return window;
    }
    return nullptr;
}

inline QTableWidget *cameraTable()
{
    return childNamed<QTableWidget>(*mainWindow(), "cameraTable");
}

inline QPushButton *refreshButton()
{
    return childNamed<QPushButton>(*mainWindow(), "refreshBtn");
}

/// The texts of the camera table, row by row.
inline QList<QStringList> rows()
{
    QList<QStringList> texts;
    const QTableWidget *table = cameraTable();
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column)
            cells.append(table->item(row, column)->text());
        texts.append(cells);
    }
    return texts;
}

inline QList<int> selectedRows()
{
    QList<int> selected;
    for (const QModelIndex &index : cameraTable()->selectionModel()->selectedRows())
        selected.append(index.row());
    return selected;
}

/// What the table shows during a scan.
inline QList<QStringList> scanningRows()
{
    return {{QStringLiteral("Scanning..."), QString(), QString()}};
}

/// A camera without a vendor; rowOf() is its row.
inline CvxScripted::CameraRecord cameraRecord(const std::string &id)
{
    CvxScripted::CameraRecord record;
    record.id = id;
    record.extendedId = "producer/" + id;
    record.model = "model " + id;
    record.serialNumber = "serial " + id;
    record.type = CvxCPP::CvxTransportLayerGigE;
    return record;
}

inline QStringList rowOf(const QString &id)
{
    return {QString(), QStringLiteral("model ") + id, QStringLiteral("serial ") + id};
}

/// How many scans have been started.
inline int scans()
{
    return int(CvxScripted::callCount(CvxScripted::Function::CountCameras));
}

/// The functions called so far, in order.
inline QVector<int> calledFunctions()
{
    QVector<int> functions;
    for (const CvxScripted::Call &seen : CvxScripted::calls())
        functions.append(int(seen.function));
    return functions;
}

/// Lets everything that is queued for the GUI thread happen.
inline void processQueuedEvents()
{
    for (int round = 0; round < 3; ++round) // What an event queues in its turn happens in the next round.
        QCoreApplication::processEvents();
}

/// Calls a slot by its name, as a caller through the meta-object system does.
inline bool call(QObject &object, const char *slot)
{
    return QMetaObject::invokeMethod(&object, slot, Qt::DirectConnection);
}

} // namespace ControllerTest
