#pragma once

#include "tests/kit/editors/EditorBench.h"
#include "tools/camerasetup/details/SelectorModel.h"
#include "tools/camerasetup/details/SelectorTable.h"
#include "tools/camerasetup/values/CameraJobs.h"
#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/OpeningSnapshot.h"
#include "tools/camerasetup/values/PresentSelectors.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

#include <algorithm>

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// A camera with a gain and a mode for each of three taps of two heads.
inline void addTaps(TestDevice &device)
{
    addChoice(device, "HeadSelector", {"Left", "Right"});
    addChoice(device, "GainSelector", {"All", "Tap1", "Tap2"}).info.displayName = "Tap";
    addNumber(device, "Gain", 1.0, 0.0, 10.0).info.displayName = "Gain of the tap";
    addChoice(device, "GainAuto", {"Off", "Continuous"});
    device.add("Width", std::int64_t(640));
    device.select("HeadSelector", {"GainSelector"});
    device.select("GainSelector", {"Gain", "GainAuto"});
    device.feature("GainAuto").rule = [&device](CvxCPP::NodeState &state) {
        const bool isAll
            = device.ScriptedDevice::value("GainSelector") == CvxCPP::NodeValue(std::string("All"));
        state.lockReason = isAll ? CvxCPP::LockReason::NotAvailable : CvxCPP::LockReason::None;
    };
}

/// A shown table.
struct Taps
{
    explicit Taps(const EditorBench::Script &script = addTaps) : bench(script)
    {
        table.show();
        if (!QTest::qWaitFor([this] { return selectors.of("Gain").has_value(); }, hangTimeout))
            qFatal("The selectors are not read.");
    }

    void show(const char *feature)
    {
        table.setFeature(QString::fromLatin1(feature));
        if (!QTest::qWaitFor([this] { return view->model()->columnCount() > 0; }, hangTimeout))
            qFatal("The table is not read.");
    }

    /// Changes a cell as its editor does.
    void change(int row, int column, const CvxCPP::NodeValue &value)
    {
        view->model()->setData(view->model()->index(row, column), QVariant::fromValue(value), Qt::EditRole);
    }

    template <typename Editor>
    Editor *edit(int row, int column)
    {
        view->setCurrentIndex(view->model()->index(row, column));
        view->edit(view->currentIndex());
        return view->findChild<Editor *>();
    }

    /// Returns true if a label with this text is visible.
    bool says(const QString &text) const
    {
        const auto labels = table.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
            [&text](const QLabel *label) { return label->isVisible() && label->text() == text; });
    }

    QPushButton *button(const QString &text) const
    {
        const auto buttons = table.findChildren<QPushButton *>();
        const auto found = std::find_if(buttons.begin(), buttons.end(),
            [&text](const QPushButton *button) { return button->isVisible() && button->text() == text; });
        return found == buttons.end() ? nullptr : *found;
    }

    /// Returns what reading the table has written to the tap's selector, once the opening was read.
    std::vector<CvxCPP::NodeValue> tapsSince(std::size_t first)
    {
        const auto written = bench.device().writtenValues("GainSelector");
        return {written.begin() + static_cast<std::ptrdiff_t>(first), written.end()};
    }

    bool waitForOpening()
    {
        return QTest::qWaitFor(
            [this] { return opening.state() == OpeningSnapshot::State::Complete; }, hangTimeout);
    }

    QString cell(int row, int column) const { return view->model()->index(row, column).data().toString(); }

    QStringList headers(Qt::Orientation orientation) const
    {
        QStringList texts;
        const auto *const model = view->model();
        const int count = orientation == Qt::Horizontal ? model->columnCount() : model->rowCount();
        for (int section = 0; section < count; ++section)
            texts.append(model->headerData(section, orientation).toString());
        return texts;
    }

    EditorBench bench;
    CameraJobs jobs{bench.connection};
    PresentSelectors selectors{bench.client};
    OpeningSnapshot opening{bench.client, selectors};
    ChangeHistory history{bench.client, jobs, selectors, opening};
    SelectorTable table{bench.client, jobs, selectors, history};
    QTableView *view = table.findChild<QTableView *>();
};
