#include "tools/kit/widgets/CollapsibleGroup.h"

#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

CollapsibleGroup::CollapsibleGroup(const QString &title, QWidget *parent)
    : QWidget(parent),
      m_title(new QToolButton(this)),
      m_content(new QWidget(this)),
      m_contentLayout(new QVBoxLayout(m_content))
{
    m_title->setObjectName(QStringLiteral("groupTitle"));
    m_title->setText(title);
    m_title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_title->setAutoRaise(true);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_contentLayout->setContentsMargins(10, 4, 4, 8);
    m_contentLayout->setSpacing(6);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_content);
    connect(m_title, &QToolButton::clicked, this, [this] { setOpen(!m_isOpen); });
    setOpen(false);
}

void CollapsibleGroup::addWidget(QWidget *widget)
{
    m_contentLayout->addWidget(widget);
}

void CollapsibleGroup::setOpen(bool isOpen)
{
    m_title->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    m_title->setAccessibleDescription(isOpen ? tr("Expanded group") : tr("Collapsed group"));
    m_content->setVisible(isOpen);
    if (std::exchange(m_isOpen, isOpen) != isOpen)
        emit toggled(isOpen);
}
