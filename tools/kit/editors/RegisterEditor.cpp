#include "tools/kit/editors/RegisterEditor.h"

#include "tools/kit/editors/HexView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

using CvxCPP::NodeAccess;
using CvxCPP::NodeState;

namespace {

constexpr qint64 maxSize = 1 << 20; ///< Maximum size of a register of which only the length is known.

} // namespace

RegisterEditor::RegisterEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
    : FeatureEditor(info, client, parent),
      m_size(new QLabel(this)),
      m_write(new QPushButton(tr("Write"), this)),
      m_discard(new QPushButton(tr("Discard"), this)),
      m_view(new HexView(this))
{
    auto *const control = new QWidget(this);
    auto *const layout = new QHBoxLayout(control);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_size, 1);
    layout->addWidget(m_write);
    layout->addWidget(m_discard);
    m_size->setProperty("role", QStringLiteral("secondary"));
    m_write->setProperty("role", QStringLiteral("primary"));
    m_write->setToolTip(tr("Writes all bytes to the camera (Ctrl+Return)."));
    m_discard->setToolTip(tr("Shows the bytes of the camera again (Escape)."));
    control->setFocusProxy(m_view);
    setControl(control);
    addWideControl(m_view);
    setTabOrder(m_view, m_write);
    setTabOrder(m_write, m_discard);
    RegisterEditor::labelChanged();
    showButtons();

    connect(m_write, &QPushButton::clicked, this, &RegisterEditor::write);
    connect(m_discard, &QPushButton::clicked, this, &RegisterEditor::discard);
    connect(m_view, &HexView::writeRequested, this, &RegisterEditor::write);
    connect(m_view, &HexView::discardRequested, this, &RegisterEditor::discard);
    connect(m_view, &HexView::edited, this, &RegisterEditor::onEdited);
    connect(m_view, &HexView::pasteRefused, this, &RegisterEditor::showRemark);
    connect(&client, &FeatureClient::written, this, &RegisterEditor::onWritten);
}

void RegisterEditor::showState(const NodeState &state)
{
    const auto *const bytes = std::get_if<HexBytes::Bytes>(&state.value);
    m_isWriteOnly = !bytes && state.access == NodeAccess::WriteOnly && state.maxLength <= maxSize;
    m_isKnown = bytes || m_isWriteOnly;
    if (m_isKnown)
        m_view->setCamera(bytes
                ? *bytes
                : HexBytes::Bytes(static_cast<std::size_t>(qBound<qint64>(0, state.maxLength, maxSize))));
    const QString size = tr("%n byte(s)", nullptr, static_cast<int>(m_view->bytes().size()));
    m_size->setText(bytes ? size : tr("%1, not readable").arg(size));
    showButtons();
}

void RegisterEditor::setEditable(bool isEditable)
{
    if (!state()) {
        m_view->discard(); // Another camera may be opened next.
        m_isKnown = false;
    }
    m_view->setReadOnly(!isEditable || !m_isKnown);
    showButtons();
}

void RegisterEditor::labelChanged()
{
    m_view->setAccessibleName(label());
}

bool RegisterEditor::hasEdits() const
{
    return m_view->bytes().isModified();
}

void RegisterEditor::write()
{
    if (m_write->isHidden() || !m_write->isEnabled())
        return;
    m_submitted = m_view->bytes().shown();
    submit(m_submitted);
}

void RegisterEditor::discard()
{
    m_view->discard();
    showRemark({});
    rejectQuestion();
}

/// A question about the previous bytes is answered with no.
void RegisterEditor::onEdited()
{
    if (m_view->bytes().isModified())
        rejectQuestion();
    showRemark({});
    showButtons();
}

/// If the camera has changed some of the written bytes, that is no edit of a person.
void RegisterEditor::onWritten(const QString &name)
{
    if (name != feature() || m_view->bytes().shown() != m_submitted)
        return;
    m_view->discard();
    refresh();
}

void RegisterEditor::showButtons()
{
    const bool isModified = m_view->bytes().isModified();
    m_write->setVisible(isModified || (m_isWriteOnly && m_view->bytes().size() > 0));
    m_write->setEnabled(!m_view->isReadOnly());
    m_discard->setVisible(isModified);
}
