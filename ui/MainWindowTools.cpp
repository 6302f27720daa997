// This file implements the tool tiles of the window.

#include "ui/MainWindow.h"

#include "ui/ApplicationLauncher.h"

#include "ui_MainWindow.h"

#include <QGridLayout>
#include <QSet>
#include <QSysInfo>
#include <QTimer>

namespace {

constexpr int columns = 3;
constexpr int spacing = 6; // pixels
constexpr int tileWidth = 185; // pixels

} // namespace

void MainWindow::initializeTools()
{
    qDeleteAll(m_launchers);
    m_launchers.clear();
    m_tools.clear();

    auto *grid = new QGridLayout(ui->toolsContainer);
    grid->setSpacing(spacing);
    grid->setContentsMargins(0, 0, 0, 0);

    m_platform = QStringLiteral("linux_") + QSysInfo::currentCpuArchitecture();
    const QVector<ToolConfig> tools = m_config.allTools(m_platform);
    for (const ToolConfig &tool : tools) {
        auto *tile = new ApplicationLauncher(tool.name, tool.description, this);
        const int index = m_launchers.size();
        m_launchers.append(tile);
        m_tools.append(tool);
        connect(tile, &ApplicationLauncher::clicked, this,
            [this, tool] { emit requestLaunchTool(tool.executable); });
        grid->addWidget(tile, index / columns, index % columns);
    }
    ui->toolsContainer->setFixedWidth(columns * tileWidth + (columns - 1) * spacing);
}

void MainWindow::renderTools()
{
    ui->toolsDescriptionLabel->setText(m_selectedGroup.name.isEmpty()
            ? tr("Select a camera to enable its recommended tools.")
            : tr("Recommended for %1. Non-recommended tools are disabled.").arg(m_selectedGroup.name));

    const QSet<QString> recommended
        = m_config.recommendedToolsIdsForCamera(m_selectedGroup, m_selectedCamera, m_platform);
    for (int index = 0; index < m_launchers.size(); ++index)
        m_launchers.at(index)->setEnabled(recommended.contains(m_tools.at(index).id));

    ui->toolsContainer->updateGeometry();
    // The size hint is valid only once the layout has been activated.
    QTimer::singleShot(
        0, this, [this] { ui->toolsScroll->setMinimumHeight(ui->toolsContainer->sizeHint().height()); });
}
