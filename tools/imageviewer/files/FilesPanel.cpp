#include "tools/imageviewer/files/FilesPanel.h"

#include "tools/imageviewer/files/FfmpegCommand.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/ComboBox.h"
#include "tools/kit/widgets/Message.h"
#include "tools/kit/widgets/VerticalScrollArea.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr double bytesPerGigabyte = 1e9;

QString defaultFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return pictures.isEmpty() ? QDir::homePath() : pictures;
}

/// Returns values for the preview of a name before anything was saved.
FileNameValues exampleValues()
{
    FileNameValues values;
    values.camera = FilesPanel::tr("Camera");
    values.serialNumber = QStringLiteral("12345");
    values.pixelFormat = QStringLiteral("Mono8");
    values.time = QDateTime::currentDateTime();
    values.frameId = 1234;
    return values;
}

} // namespace

FilesPanel::FilesPanel(
    SnapshotSaver &saver, RecordingControl &recording, ShownImage shownImage, QWidget *parent)
    : QWidget(parent), m_saver(saver), m_recording(recording), m_shownImage(std::move(shownImage))
{
    auto *const content = new QWidget;
    auto *const contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *const part : {createPlace(), createSnapshot(), createRecording()})
        contentLayout->addWidget(part);
    contentLayout->addStretch();
    auto *const scrollArea = new VerticalScrollArea(this);
    scrollArea->setWidget(content);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(scrollArea);
    connect(&m_saver, &SnapshotSaver::saved, this, &FilesPanel::takeSaved);
    connect(&m_saver, &SnapshotSaver::failed, this, &FilesPanel::showProblem);
    connect(&m_recording, &RecordingControl::stateChanged, this, &FilesPanel::showState);
    connect(&m_recording, &RecordingControl::progressChanged, this, &FilesPanel::showProgress);
    connect(&m_recording, &RecordingControl::finished, this, &FilesPanel::takeFinished);
    showPreview();
    showFormat();
    showState();
}

QWidget *FilesPanel::createPlace()
{
    auto *const group = new QGroupBox(tr("Files"), this);
    m_folder = new QLineEdit(defaultFolder(), group);
    m_folder->setObjectName(QStringLiteral("folder"));
    m_folder->setToolTip(tr("The folder for snapshots and recordings."));
    auto *const choose = new QPushButton(tr("Ch&oose…"), group);
    choose->setAccessibleName(tr("Choose the folder"));
    m_pattern = new QLineEdit(FileNamePattern::defaultPattern(), group);
    m_pattern->setObjectName(QStringLiteral("pattern"));
    m_pattern->setToolTip(FileNamePattern::help());
    m_preview = createMessage(group);
    m_preview->setObjectName(QStringLiteral("preview"));
    auto *const folderLabel = new QLabel(tr("Fol&der"), group);
    folderLabel->setBuddy(m_folder);
    auto *const patternLabel = new QLabel(tr("File &name"), group);
    patternLabel->setBuddy(m_pattern);
    auto *const folderRow = new QHBoxLayout;
    folderRow->addWidget(m_folder, 1);
    folderRow->addWidget(choose);
    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(folderLabel);
    layout->addLayout(folderRow);
    layout->addWidget(patternLabel);
    layout->addWidget(m_pattern);
    layout->addWidget(m_preview);
    connect(choose, &QPushButton::clicked, this, &FilesPanel::chooseFolder);
    connect(m_pattern, &QLineEdit::textChanged, this, &FilesPanel::showPreview);
    return group;
}

QWidget *FilesPanel::createSnapshot()
{
    auto *const group = new QGroupBox(tr("Snapshot"), this);
    m_snapshotFormat = new QComboBox(group);
    makeNarrow(m_snapshotFormat);
    m_snapshotFormat->setObjectName(QStringLiteral("snapshotFormat"));
    m_snapshotFormat->setAccessibleName(tr("Format of snapshots"));
    const struct
    {
        ImageFileFormat format;
        QString text;
    } formats[] = {{ImageFileFormat::Png16, tr("PNG, 16 bits")}, {ImageFileFormat::Png8, tr("PNG, 8 bits")},
        {ImageFileFormat::Tiff, tr("TIFF, measured values")}, {ImageFileFormat::Raw, tr("Raw bytes")}};
    for (const auto &entry : formats)
        m_snapshotFormat->addItem(entry.text, static_cast<int>(entry.format));
    m_snapshot = new QPushButton(tr("&Save snapshot"), group);
    m_snapshot->setObjectName(QStringLiteral("snapshot"));
    m_snapshot->setToolTip(tr(
        "Saves the values of the picture that is shown, with a sidecar that contains the camera's settings. "
        "Contrast, white balance and marks of the display are not part of the file."));
    m_snapshotMessage = createMessage(group);
    m_snapshotMessage->setObjectName(QStringLiteral("snapshotMessage"));
    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(m_snapshotFormat);
    layout->addWidget(m_snapshot);
    layout->addWidget(m_snapshotMessage);
    connect(m_snapshot, &QPushButton::clicked, this, &FilesPanel::saveSnapshot);
    return group;
}

QWidget *FilesPanel::createRecording()
{
    auto *const group = new QGroupBox(tr("Recording"), this);
    m_recordingFormat = new QComboBox(group);
    makeNarrow(m_recordingFormat);
    m_recordingFormat->setObjectName(QStringLiteral("recordingFormat"));
    m_recordingFormat->setAccessibleName(tr("Format of recordings"));
    const struct
    {
        RecordingFormat format;
        QString text;
    } formats[] = {{RecordingFormat::BigTiff, tr("BigTIFF, measured values")},
        {RecordingFormat::Raw, tr("Raw bytes with an index")},
        {RecordingFormat::VideoH264, tr("Video, 8 bits, H.264 (MP4)")},
        {RecordingFormat::VideoLossless, tr("Video, 8 bits, lossless (MKV)")}};
    for (const auto &entry : formats)
        m_recordingFormat->addItem(entry.text, static_cast<int>(entry.format));
    m_formatHint = createMessage(group);
    m_formatHint->setObjectName(QStringLiteral("formatHint"));
    m_limits = createLimits(group);
    m_record = new QPushButton(group);
    m_record->setObjectName(QStringLiteral("record"));
    m_progress = createMessage(group);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_recordingMessage = createMessage(group);
    m_recordingMessage->setObjectName(QStringLiteral("recordingMessage"));
    auto *const layout = new QVBoxLayout(group);
    for (QWidget *const part : {static_cast<QWidget *>(m_recordingFormat),
             static_cast<QWidget *>(m_formatHint), m_limits, static_cast<QWidget *>(m_record),
             static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_recordingMessage)})
        layout->addWidget(part);
    connect(m_recordingFormat, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &FilesPanel::showFormat);
    connect(m_record, &QPushButton::clicked, this, &FilesPanel::toggleRecording);
    return group;
}

QWidget *FilesPanel::createLimits(QWidget *parent)
{
    auto *const limits = new QWidget(parent);
    m_maxImages = new LimitBox(tr("Stop after"), {1, 1e8, 300, 0}, tr(" images"), limits);
    m_maxSeconds = new LimitBox(tr("Stop after"), {0.1, 1e6, 10, 1}, tr(" s"), limits);
    m_minFree = new LimitBox(tr("Keep free"), {0.1, 1e6, 10, 1}, tr(" GB"), limits);
    m_minFree->setToolTipText(tr("Stops the recording before less space than this is left on the disk."));
    m_playbackRate = new LimitBox(tr("Play at"), {0.1, 1000, 25, 1}, tr(" images/s"), limits);
    m_playbackRate->setToolTipText(
        tr("Images per second when the video is played. Otherwise, it plays as fast as it was recorded."));
    for (const auto &[name, limit] : this->limits())
        limit->setObjectName(name);
    auto *const layout = new QVBoxLayout(limits);
    layout->setContentsMargins({});
    for (LimitBox *const limit : {m_maxImages, m_maxSeconds, m_minFree, m_playbackRate})
        layout->addWidget(limit);
    return limits;
}

SnapshotOptions FilesPanel::snapshotOptions() const
{
    SnapshotOptions options;
    options.folder = m_folder->text();
    options.pattern = m_pattern->text();
    options.format = static_cast<ImageFileFormat>(m_snapshotFormat->currentData().toInt());
    return options;
}

RecordingOptions FilesPanel::recordingOptions() const
{
    RecordingOptions options;
    options.folder = m_folder->text();
    options.pattern = m_pattern->text();
    options.format = static_cast<RecordingFormat>(m_recordingFormat->currentData().toInt());
    options.maxImages = static_cast<std::uint64_t>(m_maxImages->limit());
    options.maxSeconds = m_maxSeconds->limit();
    options.minFreeBytes = static_cast<std::uint64_t>(m_minFree->limit() * bytesPerGigabyte);
    options.playbackRate = m_playbackRate->limit();
    return options;
}

void FilesPanel::saveSnapshot()
{
    m_saver.save(m_shownImage(), snapshotOptions());
}

void FilesPanel::toggleRecording()
{
    if (m_recording.state() != RecordingControl::State::Idle) {
        m_recording.stop();
        return;
    }
    showMessage(m_recordingMessage, {}, "");
    m_recording.start(recordingOptions());
}

void FilesPanel::chooseFolder()
{
    auto *const dialog
        = new QFileDialog(window(), tr("Folder for snapshots and recordings"), m_folder->text());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, m_folder, &QLineEdit::setText);
    dialog->open();
}

void FilesPanel::showPreview()
{
    const FileNamePattern pattern(m_pattern->text());
    const bool isUsable = pattern.problem().isEmpty();
    showMessage(m_preview,
        isUsable ? tr("For example: %1").arg(pattern.name(exampleValues(), 1))
                 : tr("This name cannot be used: %1.").arg(pattern.problem()),
        isUsable ? "secondary" : "error");
    m_snapshot->setEnabled(isUsable);
    showState();
}

void FilesPanel::showFormat()
{
    const bool isChosenVideo = isVideo(recordingOptions().format);
    m_playbackRate->setVisible(isChosenVideo);
    const bool isMissing = isChosenVideo && findFfmpeg().isEmpty();
    showMessage(m_formatHint,
        isMissing ? tr("Videos need the program ffmpeg, which is not installed. Install it with: %1")
                        .arg(QStringLiteral("sudo apt install ffmpeg"))
                  : QString(),
        "warning");
    showState();
}

void FilesPanel::showState()
{
    const RecordingControl::State state = m_recording.state();
    const bool isIdle = state == RecordingControl::State::Idle;
    const bool isUsable
        = FileNamePattern(m_pattern->text()).problem().isEmpty() && m_formatHint->text().isEmpty();
    const QString texts[] = {tr("&Record"), tr("S&top recording"), tr("S&top recording"), tr("Writing…")};
    m_record->setText(texts[static_cast<int>(state)]);
    m_record->setEnabled(isIdle ? isUsable : state != RecordingControl::State::Finishing);
    m_recordingFormat->setEnabled(isIdle);
    m_limits->setEnabled(isIdle);
    showProgress();
}

void FilesPanel::showProgress()
{
    if (m_recording.state() == RecordingControl::State::Idle) {
        showMessage(m_progress, {}, "");
        return;
    }
    const RecordingProgress &progress = m_recording.progress();
    showMessage(m_progress, RecordingSummary::progressText(progress), "");
    const QString losses = RecordingSummary::lossText(progress);
    if (m_recording.isCameraLost())
        showMessage(m_recordingMessage,
            tr("The camera is lost; the recording goes on when the camera is back. %1").arg(losses).trimmed(),
            "warning");
    else
        showMessage(m_recordingMessage, losses, "warning");
}

void FilesPanel::takeSaved(const QString &path)
{
    showMessage(m_snapshotMessage, tr("Saved as \"%1\".").arg(QFileInfo(path).fileName()), "good");
}

void FilesPanel::showProblem(const QString &text)
{
    showMessage(m_snapshotMessage, text, "error");
}

void FilesPanel::takeFinished(const RecordingResult &result)
{
    const bool isComplete = RecordingSummary::lossText(result.progress).isEmpty();
    const char *const role = !result.problem.isEmpty() ? "error" : isComplete ? "good" : "warning";
    showMessage(m_recordingMessage, RecordingSummary::text(result), role);
}

void FilesPanel::saveSettings(ToolSettings &settings) const
{
    settings.setValue(QStringLiteral("files/folder"), m_folder->text());
    settings.setValue(QStringLiteral("files/pattern"), m_pattern->text());
    settings.setValue(QStringLiteral("files/pictureFormat"), m_snapshotFormat->currentData().toInt());
    settings.setValue(QStringLiteral("files/recordingFormat"), m_recordingFormat->currentData().toInt());
    for (const auto &[name, limit] : limits()) {
        settings.setValue(QStringLiteral("files/%1").arg(name), limit->number());
        settings.setValue(QStringLiteral("files/%1IsOn").arg(name), limit->isOn());
    }
}

void FilesPanel::restoreSettings(const ToolSettings &settings)
{
    m_folder->setText(settings.value(QStringLiteral("files/folder"), m_folder->text()));
    m_pattern->setText(settings.value(QStringLiteral("files/pattern"), m_pattern->text()));
    selectData(m_snapshotFormat, settings.value(QStringLiteral("files/pictureFormat"), -1));
    selectData(m_recordingFormat, settings.value(QStringLiteral("files/recordingFormat"), -1));
    for (const auto &[name, limit] : limits())
        limit->set(settings.value(QStringLiteral("files/%1IsOn").arg(name), false),
            settings.value(QStringLiteral("files/%1").arg(name), limit->number()));
}

QVector<QPair<QString, LimitBox *>> FilesPanel::limits() const
{
    return {{QStringLiteral("maxImages"), m_maxImages}, {QStringLiteral("maxSeconds"), m_maxSeconds},
        {QStringLiteral("minFree"), m_minFree}, {QStringLiteral("playbackRate"), m_playbackRate}};
}
