#include "tools/camerasetup/compare/ExportActions.h"

#include "tools/kit/start/ToolIcons.h"
#include "tools/kit/start/ToolSettings.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString exportDirectoryKey()
{
    return QStringLiteral("compare/exportDirectory");
}

bool isPage(const QString &path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    return ending == QLatin1String("html") || ending == QLatin1String("htm");
}

} // namespace

ExportActions::ExportActions(
    const CompareSession &session, const DifferenceView &view, ToolSettings &settings, QWidget *window)
    : QObject(window),
      save(new QAction(ToolIcons::icon(ToolIcons::Kind::Save), tr("Export…"), this)),
      copy(new QAction(ToolIcons::icon(ToolIcons::Kind::Copy), tr("Copy"), this)),
      m_session(session),
      m_view(view),
      m_settings(settings),
      m_window(window)
{
    save->setToolTip(tr("Saves what is shown as text or as a page (HTML)."));
    copy->setToolTip(tr("Copies what is shown as text to the clipboard."));
    connect(save, &QAction::triggered, this, &ExportActions::chooseFile);
    connect(copy, &QAction::triggered, this, &ExportActions::copyText);
}

void ExportActions::update()
{
    const bool isComplete = m_session.isRead(CompareSession::Left) && m_session.isRead(CompareSession::Right);
    save->setEnabled(isComplete);
    copy->setEnabled(isComplete);
}

ComparisonReport ExportActions::report() const
{
    const auto side = [this](CompareSession::Side which) {
        return ComparisonReport::Side{m_session.source(which).title(), m_session.snapshot(which).time};
    };
    ComparisonReport report{side(CompareSession::Left), side(CompareSession::Right), m_view.summary(), {}};
    for (const DifferenceRow *const row : m_view.model().shownRows()) {
        const ComparedFeature &feature = row->feature;
        report.rows.append(
            {row->category, row->title, SettingTexts::rawTitle(feature.name, feature.selectors), row->left,
                row->right, feature.difference, feature.isIgnorable});
    }
    return report;
}

void ExportActions::chooseFile()
{
    const QString directory = m_settings.value(exportDirectoryKey(), QDir::homePath());
    auto *const dialog = new QFileDialog(m_window, tr("Export the comparison"), directory);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Page (*.html)"), tr("Text (*.txt)")});
    dialog->setDefaultSuffix(QStringLiteral("html"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
        dialog->setDefaultSuffix(
            filter.contains(QLatin1String("*.txt")) ? QStringLiteral("txt") : QStringLiteral("html"));
    });
    connect(dialog, &QFileDialog::fileSelected, this, &ExportActions::saveTo);
    dialog->open();
}

void ExportActions::saveTo(const QString &path)
{
    m_settings.setValue(exportDirectoryKey(), QFileInfo(path).absolutePath());
    const QByteArray content = (isPage(path) ? comparisonPage(report()) : comparisonText(report())).toUtf8();
    QSaveFile file(path);
    const bool isSaved
        = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    if (isSaved)
        emit finished(tr("The comparison was saved as %1.").arg(QDir::toNativeSeparators(path)),
            QStringLiteral("good"));
    else
        emit finished(tr("The comparison could not be saved as %1: %2")
                          .arg(QDir::toNativeSeparators(path), file.errorString()),
            QStringLiteral("error"));
}

void ExportActions::copyText()
{
    QApplication::clipboard()->setText(comparisonText(report()));
    emit finished(tr("The comparison was copied."), QStringLiteral("good"));
}
