#include "tools/kit/assistant/CameraSettings.h"

#include "tools/kit/editors/FeatureEditor.h"
#include "tools/kit/editors/FeatureRow.h"
#include "tools/kit/editors/StreamPauser.h"

namespace {

constexpr int labelWidth = 120;

/// Older cameras name some features differently.
struct OldNames
{
    const char *name;
    const char *oldNames[2];
};

constexpr OldNames oldNames[] = {
    {"ExposureTime", {"ExposureTimeAbs", "ExposureTimeRaw"}},
    {"Gain", {"GainAbs", "GainRaw"}},
    {"BlackLevel", {"BlackLevelAbs", "BlackLevelRaw"}},
    {"AcquisitionFrameRate", {"AcquisitionFrameRateAbs", "AcquisitionFrameRateRaw"}},
    {"AcquisitionLineRate", {"AcquisitionLineRateAbs", "AcquisitionLineRateRaw"}},
};

QStringList namesOf(const QString &name)
{
    QStringList names{name};
    for (const OldNames &entry : oldNames) {
        if (name != QLatin1String(entry.name))
            continue;
        for (const char *const oldName : entry.oldNames)
            names.append(QString::fromLatin1(oldName));
    }
    return names;
}

} // namespace

CameraSettings::CameraSettings(
    const QStringList &names, FeatureClient &client, StreamPauser &pauser, QWidget *parent)
    : CollapsibleGroup(tr("Camera settings"), parent), m_names(names), m_client(client), m_pauser(pauser)
{
    hide();
    connect(&client, &FeatureClient::nodesLoaded, this, &CameraSettings::createRows);
    createRows();
}

/// Another camera may have other features, or other kinds of them.
void CameraSettings::createRows()
{
    qDeleteAll(m_rows);
    m_rows.clear();
    hide();
    for (const QString &name : m_names) {
        FeatureRowContent content;
        content.names = namesOf(name);
        if (content.names.size() > 1) // The quantities that are tuned by eye.
            content.slider = NumberEditor::SliderUse::Always;
        auto *const row = new FeatureRow(content, m_client, this);
        m_rows.append(row);
        addWidget(row);
        connect(row, &FeatureRow::found, this, &CameraSettings::onFound);
        if (row->editor())
            onFound(row->editor());
    }
}

void CameraSettings::onFound(FeatureEditor *editor)
{
    editor->setLabelWidth(labelWidth);
    editor->setStreamPauser(&m_pauser);
    show();
}
