#include "tools/kit/pages/NoCameraPage.h"

#include "sdk/doctor/Doctor.h"
#include "tools/kit/pages/FindingCard.h"
#include "tools/kit/widgets/VerticalScrollArea.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

namespace {

constexpr int maxTextWidth = 760; // Longer lines are hard to read.

QString usualText()
{
    return NoCameraPage::tr("Connect a camera and switch it on. It appears here by itself.");
}

bool isFine(const Finding &finding)
{
    return finding.severity == Severity::Ok;
}

} // namespace

NoCameraPage::NoCameraPage(QWidget *parent)
    : NoCameraPage([] { return runDoctor(DoctorOptions::forThisProgram()); }, parent)
{ }

NoCameraPage::NoCameraPage(Check check, QWidget *parent)
    : QWidget(parent),
      m_check(std::move(check)),
      m_text(new QLabel(usualText())),
      m_summary(new QLabel),
      m_progress(new QProgressBar),
      m_again(new QPushButton(tr("Check a&gain"))),
      m_showFine(new QCheckBox(tr("Show what is in order, too"))),
      m_cards(new QVBoxLayout)
{
    createWidgets();
    connect(m_again, &QPushButton::clicked, this, &NoCameraPage::check);
    connect(m_showFine, &QCheckBox::toggled, this, &NoCameraPage::showFine);
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] { showFindings(m_watcher.result()); });
}

QWidget *NoCameraPage::createTop()
{
    auto *const title = new QLabel(tr("No camera found"));
    title->setProperty("role", QStringLiteral("title"));
    m_text->setWordWrap(true);
    m_summary->setWordWrap(true);
    m_summary->setProperty("role", QStringLiteral("secondary"));
    m_progress->setRange(0, 0); // How far the checks are is unknown.
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("The checks are running"));
    m_progress->hide();
    m_showFine->hide();

    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(m_again);
    buttons->addWidget(m_showFine);
    buttons->addStretch();
    auto *const top = new QWidget;
    auto *const layout = new QVBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(title);
    layout->addWidget(m_text);
    layout->addWidget(m_summary);
    layout->addWidget(m_progress);
    layout->addLayout(buttons);
    return top;
}

void NoCameraPage::createWidgets()
{
    auto *const cards = new QWidget;
    cards->setLayout(m_cards);
    m_cards->setContentsMargins(0, 0, 8, 0);
    m_cards->addStretch();
    auto *const scroller = new VerticalScrollArea;
    scroller->setFocusPolicy(Qt::StrongFocus); // The arrow keys scroll the findings.
    scroller->setAccessibleName(tr("Findings"));
    scroller->setWidget(cards);

    auto *const column = new QWidget;
    column->setMaximumWidth(maxTextWidth);
    auto *const layout = new QVBoxLayout(column);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(14);
    layout->addWidget(createTop());
    layout->addWidget(scroller, 1);
    auto *const page = new QHBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addStretch();
    page->addWidget(column, 100);
    page->addStretch();
    setFocusProxy(m_again);
}

void NoCameraPage::setProblem(const QString &problem)
{
    m_text->setText(problem.isEmpty() ? usualText() : problem);
}

void NoCameraPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_hasFindings)
        check();
}

void NoCameraPage::check()
{
    if (isChecking())
        return;
    m_again->setEnabled(false);
    m_progress->show();
    m_summary->setText(tr("Checking producers, network, GigE and USB. This takes some seconds."));
    m_watcher.setFuture(QtConcurrent::run(m_check));
}

void NoCameraPage::showFindings(Findings findings)
{
    std::stable_sort(findings.begin(), findings.end(),
        [](const Finding &left, const Finding &right) { return left.severity > right.severity; });
    removeFindings();
    for (const Finding &finding : findings) {
        auto *const card = new FindingCard(finding);
        card->setProperty("isFine", isFine(finding));
        m_cards->insertWidget(m_cards->count() - 1, card); // Before the stretch.
        card->setVisible(!isFine(finding) || m_showFine->isChecked()); // Has a parent now, so is no window.
    }
    m_hasFindings = true;
    m_progress->hide();
    m_again->setEnabled(true);
    m_showFine->setVisible(std::any_of(findings.begin(), findings.end(), isFine));
    showSummary(findings);
    emit checked();
}

void NoCameraPage::showSummary(const Findings &findings)
{
    const int problems = int(std::count_if(findings.begin(), findings.end(),
        [](const Finding &finding) { return finding.severity >= Severity::Warning; }));
    m_summary->setText(problems == 0 ? tr("The checks have found no problem.")
                                     : tr("Problems found: %1").arg(QLocale().toString(problems)));
}

void NoCameraPage::removeFindings()
{
    const auto cards = findChildren<FindingCard *>();
    qDeleteAll(cards);
}

void NoCameraPage::showFine(bool isVisible)
{
    for (FindingCard *const card : findChildren<FindingCard *>()) {
        if (card->property("isFine").toBool())
            card->setVisible(isVisible);
    }
}
