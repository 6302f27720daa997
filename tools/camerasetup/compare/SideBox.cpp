#include "tools/camerasetup/compare/SideBox.h"

#include "tools/kit/widgets/ComboBox.h"
#include "tools/kit/widgets/NoteListDialog.h"
#include "tools/kit/widgets/Role.h"
#include "tools/kit/widgets/ToolTip.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

SideBox::SideBox(const QString &label, QWidget *parent) : QFrame(parent), m_label(label)
{
    setProperty("role", QStringLiteral("card"));
    m_choice = new QComboBox(this);
    makeNarrow(m_choice);
    auto *const title = new QLabel(label, this);
    title->setProperty("role", QStringLiteral("heading"));
    title->setBuddy(m_choice);
    m_detail = new QLabel(this);
    m_detail->setTextFormat(Qt::PlainText);
    m_detail->setWordWrap(true);
    m_notesButton = new QPushButton(this);
    m_notesButton->setToolTip(tr("Shows what could not be read, and why."));
    connect(m_choice, qOverload<int>(&QComboBox::activated), this, &SideBox::choose);
    connect(m_notesButton, &QPushButton::clicked, this, &SideBox::showNotes);

    auto *const head = new QHBoxLayout;
    head->addWidget(title);
    head->addWidget(m_choice, 1);
    auto *const details = new QHBoxLayout;
    details->addWidget(m_detail, 1);
    details->addWidget(m_notesButton);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addLayout(details);
}

void SideBox::setEntries(const QVector<Entry> &entries, const SideChoice &current)
{
    const QSignalBlocker blocker(m_choice);
    m_choice->clear();
    for (const Entry &entry : entries)
        m_choice->addItem(entry.title, QVariant::fromValue(entry.choice));
    m_choice->insertSeparator(m_choice->count());
    m_choice->addItem(tr("File…"));
    for (int index = 0; index < entries.size(); ++index) {
        if (entries[index].choice == current)
            m_choice->setCurrentIndex(index);
    }
    m_choice->setToolTip(current.kind == SideChoice::Kind::File ? plainToolTip(current.name) : QString());
}

void SideBox::choose(int index)
{
    const QVariant choice = m_choice->itemData(index);
    if (choice.isValid())
        emit chosen(choice.value<SideChoice>());
    else
        emit fileRequested();
}

void SideBox::setContent(const SettingsSnapshot &snapshot)
{
    m_shown.title = snapshot.title;
    m_shown.notes = snapshot.notes;
    m_detail->setText(tr("%n setting(s), %1", nullptr, int(snapshot.side.settings.size()))
                          .arg(QLocale().toString(snapshot.time, QLocale::ShortFormat)));
    changeRole(m_detail, "secondary");
    m_notesButton->setText(tr("%n note(s)", nullptr, int(snapshot.notes.size())));
    m_notesButton->setVisible(!snapshot.notes.empty());
}

void SideBox::setProblem(const QString &problem)
{
    m_detail->setText(problem.isEmpty() ? tr("Not read yet.") : problem);
    changeRole(m_detail, problem.isEmpty() ? "secondary" : "warning");
    m_notesButton->hide();
}

void SideBox::showNotes()
{
    QVector<NoteListDialog::Row> rows;
    for (const FeatureNote &note : m_shown.notes)
        rows.append({QString::fromStdString(note.name), QString::fromStdString(note.text)});
    auto *const dialog = new NoteListDialog(m_shown.title, tr("Notes on what was read:"), rows, this);
    dialog->open();
}
