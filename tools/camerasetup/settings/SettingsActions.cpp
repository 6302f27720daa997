#include "tools/camerasetup/settings/SettingsActions.h"

#include "sdk/features/FeatureFileStorage.h"
#include "tools/camerasetup/settings/LoadDialog.h"
#include "tools/camerasetup/settings/SettingsSave.h"
#include "tools/kit/camera/FeatureClient.h"
#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/start/ToolSettings.h"
#include "tools/kit/widgets/Messages.h"
#include "tools/kit/widgets/NoteListDialog.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QStandardPaths>

using Kind = ToolIcons::Kind;

namespace {

QString directoryKey()
{
    return QStringLiteral("settings/directory");
}

QAction *createAction(
    QObject *parent, const char *name, const QString &text, const QIcon &icon, const QKeySequence &keys)
{
    auto *const action = new QAction(icon, text, parent);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(keys);
    return action;
}

} // namespace

SettingsActions::SettingsActions(const Parts &parts, QWidget *window)
    : QObject(window),
      save(createAction(
          this, "saveSettings", tr("&Save settings…"), ToolIcons::icon(Kind::Save), QKeySequence::Save)),
      load(createAction(
          this, "loadSettings", tr("&Load settings…"), ToolIcons::icon(Kind::Folder), Qt::CTRL + Qt::Key_L)),
      restore(createAction(
          this, "restoreOpening", tr("As it &was when I opened it…"), ToolIcons::icon(Kind::Restore), {})),
      m_parts(parts),
      m_window(window),
      m_save(new SettingsSave(parts.jobs, this))
{
    connect(save, &QAction::triggered, this, &SettingsActions::chooseFileToSave);
    connect(load, &QAction::triggered, this, &SettingsActions::chooseFileToLoad);
    connect(restore, &QAction::triggered, this, &SettingsActions::restoreOpening);
    connect(m_save, &SettingsSave::saved, this, &SettingsActions::reportSaved);
    connect(m_save, &SettingsSave::failed, this, &SettingsActions::reportNotSaved);
    connect(&connection(), &CameraConnection::stateChanged, this, &SettingsActions::update);
    connect(&parts.opening, &OpeningSnapshot::stateChanged, this, &SettingsActions::update);
    update();
}

CameraConnection &SettingsActions::connection() const
{
    return m_parts.client.connection();
}

void SettingsActions::addToMenu(QMenu *menu)
{
    menu->setToolTipsVisible(true);
    menu->addActions({save, load, restore});
}

/// Returns why the camera cannot be changed, for people; empty if it can.
QString SettingsActions::lockReason() const
{
    if (connection().isControlled())
        return {};
    if (connection().state() == CameraConnection::State::Open)
        return tr("The camera is only watched, so nothing can be changed.");
    return tr("The camera is not open.");
}

void SettingsActions::update()
{
    const QString reason = lockReason();
    const bool isComplete = m_parts.opening.state() == OpeningSnapshot::State::Complete;
    save->setEnabled(connection().state() == CameraConnection::State::Open);
    save->setToolTip(save->isEnabled()
            ? tr("Saves all settings to a file that other GenICam programs can read, too.")
            : tr("The camera is not open."));
    load->setEnabled(reason.isEmpty());
    load->setToolTip(
        load->isEnabled() ? tr("Shows what a settings file would change, and then loads it.") : reason);
    restore->setEnabled(reason.isEmpty() && isComplete);
    restore->setToolTip(!reason.isEmpty() ? reason
            : !isComplete
            ? tr("The settings from the opening are not completely known.")
            : tr("Shows what would change, and then sets everything as it was when the camera was opened."));
}

// ---- Saving -----------------------------------------------------------------------------------------------

void SettingsActions::chooseFileToSave()
{
    QFileDialog *const dialog = createFileDialog(tr("Save settings"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->selectFile(SettingsSave::suggestedName(connection().camera(), QDate::currentDate()));
    connect(dialog, &QFileDialog::fileSelected, this, &SettingsActions::saveFile);
    dialog->open();
}

QFileDialog *SettingsActions::createFileDialog(const QString &title)
{
    const QString byDefault = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString directory = m_parts.settings.value(directoryKey(), byDefault);
    auto *const dialog
        = new QFileDialog(m_window, title, QDir(directory).exists() ? directory : QDir::homePath());
    dialog->setObjectName(QStringLiteral("settingsFiles"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilters({tr("Settings files (%1)").arg(QStringLiteral("*.txt *.pfs *.features")),
        tr("All files (%1)").arg(QStringLiteral("*"))});
    return dialog;
}

void SettingsActions::saveFile(const QString &path)
{
    rememberDirectory(path);
    m_save->start(path, connection().camera());
}

void SettingsActions::rememberDirectory(const QString &path)
{
    m_parts.settings.setValue(directoryKey(), QFileInfo(path).absolutePath());
}

void SettingsActions::reportSaved(const QString &path, int count, const std::vector<FeatureNote> &notes)
{
    const QString text
        = tr("%n setting(s) were saved to \"%1\".", nullptr, count).arg(QFileInfo(path).fileName());
    emit reported(text);
    if (notes.empty())
        return;
    QVector<NoteListDialog::Row> rows;
    for (const FeatureNote &note : notes)
        rows.append({QString::fromStdString(note.name), QString::fromStdString(note.text)});
    auto *const dialog = new NoteListDialog(tr("Save settings"),
        text + QLatin1Char(' ') + tr("%n remark(s):", nullptr, rows.size()), rows, m_window);
    dialog->open();
}

void SettingsActions::reportNotSaved(const QString &text)
{
    showFailure(m_window, tr("Save settings"), text);
}

// ---- Loading ----------------------------------------------------------------------------------------------

void SettingsActions::chooseFileToLoad()
{
    QFileDialog *const dialog = createFileDialog(tr("Load settings"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &SettingsActions::loadFile);
    dialog->open();
}

void SettingsActions::loadFile(const QString &path)
{
    const QString title = tr("Load settings");
    if (const QString reason = lockReason(); !reason.isEmpty())
        return showFailure(m_window, title, reason);
    const auto parsed = readFeatureFile(QFile::encodeName(path).toStdString());
    if (const auto *const refusal = std::get_if<std::string>(&parsed))
        return showFailure(m_window, title, QString::fromStdString(*refusal));
    rememberDirectory(path);
    loadSettings(QFileInfo(path).fileName(), std::get<FeatureFile>(parsed));
}

void SettingsActions::restoreOpening()
{
    if (restore->isEnabled())
        loadSettings(tr("the settings from the opening"), {m_parts.opening.snapshot().side.settings, {}});
}

void SettingsActions::loadSettings(const QString &title, const FeatureFile &file)
{
    auto *const dialog = new LoadDialog(title, file, m_parts.jobs, m_parts.history, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
