#pragma once

#include "app/ApplicationController.h"
#include "sdk/testing/Gate.h"
#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/support/ChildNamed.h"
#include "tests/support/MarkingTranslator.h"
#include "ui/ApplicationLauncher.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

/// These helpers are shared by the tests of the controller. Tests that compare strings install a
/// MarkingTranslator, so each comparison also shows whether the string is translated.
namespace ControllerTest {

using CvxCPP::CvxErrorFailed;
using CvxCPP::CvxErrorSuccess;
using CvxScripted::callCount;
using CvxScripted::Function;
using CvxScripted::script;

inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

/// Returns the window of the controller, or null if there is no controller.
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

inline QList<ApplicationLauncher *> tiles()
{
    return mainWindow()->findChildren<ApplicationLauncher *>();
}

/// Returns one string per row of the camera table: vendor, model and serial number, separated by "|".
inline QStringList rows()
{
    QStringList texts;
    const QTableWidget *table = cameraTable();
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column)
            cells.append(table->item(row, column)->text());
        texts.append(cells.join(QLatin1Char('|')));
    }
    return texts;
}

/// The result of rows() during a scan.
inline const QStringList scanningRows{QStringLiteral("[ApplicationController] Scanning...||")};

/// Returns a camera whose row is "|model|ID".
inline CvxScripted::CameraRecord cameraRecord(const std::string &id)
{
    return {id, "model", "name", id, "extended " + id};
}

/// Blocks every scan at its first SDK call until the gate is open.
inline void holdScansAt(CvxScripted::Gate &gate)
{
    script().intercept = [&gate](const CvxScripted::Call &call) {
        if (call.function == Function::CountCameras)
            gate.pass();
        return CvxErrorSuccess;
    };
}

/// Returns the number of scans that have started.
inline int scans()
{
    return int(callCount(Function::CountCameras));
}

inline void reportCamera(const std::string &id)
{
    CvxScripted::announceCamera(cameraRecord(id), CvxCPP::UpdateTriggerPluggedIn);
}

/// Processes all queued events, and also the events that their handlers queue.
inline void processQueuedEvents()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

} // namespace ControllerTest
