#include "ui/ApplicationLauncher.h"

#include "ui_ApplicationLauncher.h"

#include <QGraphicsOpacityEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

ApplicationLauncher::ApplicationLauncher(const QString &name, const QString &description, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_ApplicationLauncher>()), m_name(name)
{
    ui->setupUi(this);
    ui->applicationName->setText(name);
    ui->applicationDescription->setText(description);
    setAccessibleName(name);
    setAccessibleDescription(description);

    m_opacityEffect = new QGraphicsOpacityEffect(this);
    m_opacityEffect->setOpacity(1.0); // Qt's default opacity is 0.7.
    setGraphicsEffect(m_opacityEffect);

    setAttribute(Qt::WA_Hover, true); // The style sheet's :hover rule needs this attribute.
    setCursor(Qt::PointingHandCursor);
}

ApplicationLauncher::~ApplicationLauncher() = default;

QString ApplicationLauncher::GetName() const
{
    return m_name;
}

void ApplicationLauncher::mousePressEvent(QMouseEvent *event)
{
    // The base class is not called: it would ignore the event, and Qt would pass the event on to the window.
    if (event->button() == Qt::LeftButton) {
        emit clicked();
        event->accept();
    }
}

void ApplicationLauncher::paintEvent(QPaintEvent *)
{
    // A subclass of QWidget does not draw the frame of its style sheet. This frame is drawn with a
    // push-button bevel.
    QStyleOptionButton option;
    option.init(this);
    QPainter painter(this);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
}

void ApplicationLauncher::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::EnabledChange)
        return;
    m_opacityEffect->setOpacity(testAttribute(Qt::WA_Disabled) ? 0.45 : 1.0);
    update();
}
