#pragma once

#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/tree/FeatureFilter.h"
#include "tools/camerasetup/tree/FeatureTreeView.h"
#include "tools/camerasetup/tree/TreePanel.h"
#include "tools/camerasetup/values/Favourites.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"
#include "tools/kit/start/ToolSettings.h"

#include <QLineEdit>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

/// Adds features with limits, a lock and a level, and a category with more numbers than rows are visible.
inline void addPanelFeatures(TestDevice &device)
{
    using namespace CvxCPP;
    constexpr int numbers = 200;
    for (const char *const category : {"Control", "Numbers"})
        device.add(category, {}).info.type = NodeType::Category;
    addNumber(device, "Gain", 1.0, 0.0, 10.0);
    addChoice(device, "ExposureAuto", {"Off", "Continuous"});
    ScriptedDevice::Feature &exposure = device.add("ExposureTime", 100.0);
    exposure.rule = [&device](NodeState &state) {
        if (device.ScriptedDevice::value("ExposureAuto") == NodeValue("Off"))
            return;
        state.lockReason = LockReason::LockedByNode;
        state.lockingNode = "ExposureAuto";
    };
    device.add("ReverseX", false);
    device.addCommand("Reset");
    device.add("Width", std::int64_t(640)).state.lockReason = LockReason::StreamRunning;
    device.add("UserText", std::string("Line 1"));
    device.add("Table", std::vector<std::uint8_t>{1, 2});
    for (const char *const name :
        {"Gain", "ExposureAuto", "ExposureTime", "ReverseX", "Reset", "Width", "UserText", "Table"})
        device.feature(name).info.category = "Control";
    device.feature("Gain").info.visibility = NodeVisibility::Guru;
    device.feature("ExposureAuto").info.displayName = "Automatic Exposure";
    for (int i = 0; i < numbers; ++i)
        device.add("Number" + std::to_string(i), std::int64_t(i)).info.category = "Numbers";
}

/// A shown panel with the camera.
struct PanelBench : EditorBench
{
    PanelBench()
        : EditorBench(addPanelFeatures),
          settings(QStringLiteral("test"), directory.path()),
          selectors(client),
          opening(client, selectors),
          favourites(settings),
          panel(client, opening, favourites),
          view(*panel.findChild<FeatureTreeView *>()),
          search(*panel.findChild<QLineEdit *>())
    {
        panel.resize(500, 400);
        panel.show();
        panel.activateWindow();
        if (!QTest::qWaitForWindowActive(&panel, hangTimeout))
            qFatal("The window does not become active.");
        view.setFocus();
    }

    /// Waits until the clear button of the search has faded, because its animation has no owner.
    ~PanelBench()
    {
        const QList<QToolButton *> buttons = search.findChildren<QToolButton *>();
        for (const QToolButton *button : buttons) {
            const auto hasFaded = [button] {
                const double opacity = button->property("opacity").toDouble();
                return opacity <= 0 || opacity >= 1;
            };
            if (!QTest::qWaitFor(hasFaded, hangTimeout))
                qWarning("The clear button fades without end.");
        }
    }

    FeatureTreeModel &model() { return view.filter().model(); }

    /// Makes the feature current and waits until its state is known.
    bool select(const char *name)
    {
        const QString feature = QString::fromLatin1(name);
        panel.showFeature(feature);
        return QTest::qWaitFor([&] { return client.state(feature) != nullptr; }, hangTimeout);
    }

    bool waitForClosedEditor()
    {
        return QTest::qWaitFor([&] { return view.openEditor() == nullptr; }, hangTimeout);
    }

    QString valueOf(const char *name)
    {
        return model().indexOf(QString::fromLatin1(name), FeatureTreeModel::ValueColumn).data().toString();
    }

    QTemporaryDir directory;
    ToolSettings settings;
    PresentSelectors selectors;
    OpeningSnapshot opening;
    Favourites favourites;
    TreePanel panel;
    FeatureTreeView &view;
    QLineEdit &search;
};
