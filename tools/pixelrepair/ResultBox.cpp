#include "tools/pixelrepair/ResultBox.h"

#include "tools/kit/widgets/BigNumber.h"
#include "tools/kit/widgets/Message.h"
#include "tools/pixelrepair/DefectColors.h"
#include "tools/pixelrepair/DefectList.h"
#include "tools/pixelrepair/DefectTexts.h"
#include "tools/pixelrepair/ThresholdControl.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableView>
#include <QVBoxLayout>

namespace {
constexpr int minTableHeight = 220;
}

ResultBox::ResultBox(QWidget *parent)
    : QWidget(parent),
      m_countBox(new QWidget(this)),
      m_total(new BigNumber(tr("Defect pixels"), m_countBox)),
      m_threshold(new ThresholdControl(this)),
      m_marks(new QCheckBox(tr("&Mark the defect pixels"), this)),
      m_repaired(new QCheckBox(tr("Show the re&paired picture"), this)),
      m_problem(createMessage(this)),
      m_list(new DefectList(this)),
      m_table(new QTableView(this))
{
    m_total->setObjectName(QStringLiteral("defectPixels"));
    m_marks->setObjectName(QStringLiteral("marks"));
    m_marks->setChecked(true);
    m_repaired->setObjectName(QStringLiteral("repaired"));
    m_repaired->setToolTip(
        tr("Replaces each defect pixel by the median of its good neighbours of the same colour."));
    m_table->setObjectName(QStringLiteral("defects"));
    m_table->setAccessibleName(tr("Defect pixels"));
    m_table->setModel(m_list);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed); // Fast for many rows.
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setMinimumHeight(minTableHeight);
    createCounts();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_threshold);
    layout->addWidget(m_marks);
    layout->addWidget(m_repaired);
    layout->addWidget(m_problem);
    layout->addWidget(m_table);
    connect(m_threshold, &ThresholdControl::changed, this, &ResultBox::thresholdChanged);
    connect(m_marks, &QCheckBox::toggled, this, &ResultBox::marksToggled);
    connect(m_repaired, &QCheckBox::toggled, this, &ResultBox::repairToggled);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex &index) { selectRow(index.row()); });
    clear();
}

void ResultBox::createCounts()
{
    auto *const column = new QVBoxLayout(m_countBox);
    column->setContentsMargins(0, 0, 0, 0);
    auto *const layout = new QGridLayout;
    column->addWidget(m_total);
    column->addLayout(layout);
    layout->setVerticalSpacing(2);
    const auto add = [&](const QString &text, const QString &toolTip, const QColor &color) {
        const int place = m_counts.size();
        // The square has the colour of the marks.
        const QString square = QStringLiteral("<span style=\"color:%1\">■</span> ").arg(color.name());
        auto *const name = new QLabel(color.isValid() ? square + text : text, m_countBox);
        name->setToolTip(toolTip);
        m_counts.append(new QLabel(m_countBox));
        m_counts.last()->setAlignment(Qt::AlignRight);
        m_counts.last()->setAccessibleName(text);
        layout->addWidget(name, place % 4, place / 4 * 2);
        layout->addWidget(m_counts.last(), place % 4, place / 4 * 2 + 1);
    };
    for (const DefectKind kind : defectKinds)
        add(DefectTexts::kind(kind), DefectTexts::explanation(kind), defectColor(kind));
    add(tr("Clusters"), tr("Defect pixels that touch each other."), {});
    add(tr("Columns"), tr("Parts of columns with eight defect pixels or more."), {});
    add(tr("Lines"), tr("Parts of lines with eight defect pixels or more."), {});
    layout->setHorizontalSpacing(16);
}

void ResultBox::show(const DefectResult &result)
{
    const DefectCounts &counts = result.counts;
    if (counts.pixels == 0)
        m_total->setText(tr("None"));
    else
        m_total->setValue(double(counts.pixels), 0);
    m_total->setRole(counts.pixels == 0 ? "good" : "");
    for (std::size_t i = 0; i < counts.byKind.size(); ++i)
        m_counts[int(i)]->setText(QLocale().toString(qulonglong(counts.byKind[i])));
    const std::size_t groups[] = {counts.clusters, counts.columns, counts.lines};
    for (int i = 0; i < 3; ++i)
        m_counts[int(counts.byKind.size()) + i]->setText(QLocale().toString(qulonglong(groups[i])));
    m_threshold->setThreshold(result.threshold);
    m_list->setDefects(result.map, result.groups);
    setVisible(true);
    m_countBox->setEnabled(true);
}

void ResultBox::clear()
{
    m_total->clear();
    m_total->setRole("");
    for (QLabel *const count : m_counts)
        count->setText(QStringLiteral("–"));
    m_list->setDefects({}, {});
    m_repaired->setChecked(false);
    setRepairProblem({});
    setVisible(false);
    m_countBox->setEnabled(false);
}

bool ResultBox::hasMarks() const
{
    return m_marks->isChecked();
}

bool ResultBox::isRepaired() const
{
    return m_repaired->isChecked();
}

void ResultBox::setRepairProblem(const QString &text)
{
    showMessage(m_problem, text, "warning");
}

void ResultBox::selectRow(int row)
{
    if (row >= 0)
        emit selected(m_list->place(row));
}
