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

/// Helpers that the tests of the controller share. The tests install a MarkingTranslator, so that each
/// comparison of a text also shows whether the text is translated.
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

/// Returns the window of the existing controller, or null if there is none.
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

/// Returns the texts of the camera table: vendor, model and serial number of each row, with "|" between them.
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

/// The rows during a scan.
inline const QStringList scanningRows{QStringLiteral("[ApplicationController] Scanning...||")};

/// Returns a camera whose row is "|model|ID".
inline CvxScripted::CameraRecord cameraRecord(const std::string &id)
{
    return {id, "model", "name", id, "extended " + id};
}

/// Holds every scan at its first call until the gate is open.
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

/// Processes all queued events, including those that are queued by the events themselves.
inline void processQueuedEvents()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

} // namespace ControllerTest
