#pragma once

#include "tools/kit/camera/CameraFinder.h"
#include "tools/kit/pages/CameraTable.h"

#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

/// Lets a person choose one of the cameras that are connected. The list follows every camera that appears or
/// disappears.
class CameraChooser : public QWidget
{
    Q_OBJECT

public:
    explicit CameraChooser(CameraFinder &finder, QWidget *parent = nullptr);

    /// Returns the selected camera; no value if none is visible.
    std::optional<CameraEntry> selected() const;

    /// Selects the camera if it is in the list.
    void select(const QString &id);

signals:
    /// A camera was double-clicked, or Enter or the button "Open" was pressed.
    void chosen(const CameraEntry &camera);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createWidgets();
    void createTable();
    void connectWidgets();
    void takeCameras();
    void filter(const QString &text);
    void selectSomething();
    void showState();
    QString statusText() const;
    void choose();

    CameraFinder &m_finder;
    CameraTable *m_cameras;
    QSortFilterProxyModel *m_visible; // Sorted and filtered.
    QLineEdit *m_search;
    QTableView *m_table;
    QLabel *m_status;
    QPushButton *m_open;
};
