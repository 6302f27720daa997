#include "tests/imageviewer/ViewerUnderTest.h"

#include "tools/kit/measure/Measurements.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

ViewerUnderTest::ViewerUnderTest(const QString &camera, const QVariantMap &choices)
    : m_settings(QStringLiteral("ImageViewer"), m_folder.path())
{
    for (auto choice = choices.begin(); choice != choices.end(); ++choice)
        m_settings.values().setValue(choice.key(), choice.value());
    m_window = std::make_unique<Window>(camera, m_settings);
    m_window->show();
}

QAction &ViewerUnderTest::action(const QString &text)
{
    const QList<QAction *> actions = m_window->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text().remove(QLatin1Char('&')) == text)
            return *action;
    }
    qFatal("There is no action \"%s\".", qUtf8Printable(text));
}

void ViewerUnderTest::processEvents(int milliseconds)
{
    // QCoreApplication::processEvents() with a time limit does not wait, but keeps a processor busy.
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void ViewerUnderTest::await(const std::function<bool()> &condition)
{
    constexpr qint64 hangLimit = 60000; // Milliseconds.
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.hasExpired(hangLimit))
            qFatal("Nothing has happened for a minute.");
        processEvents(20);
    }
}

void ViewerUnderTest::watchOnly()
{
    using State = CameraConnection::State;
    await([this] { return m_window->connection().state() == State::InUse; });
    const QList<QPushButton *> buttons = m_window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == QStringLiteral("&Watch only"))
            button->click();
    }
    await([this] { return m_window->connection().state() == State::Open; });
}

void ViewerUnderTest::awaitPicture()
{
    await([this] { return canvas().picture().image != nullptr; });
}

void ViewerUnderTest::awaitNewPicture()
{
    awaitPicture();
    // The next two images may have been exposed before.
    constexpr std::uint64_t imagesOnTheWay = 3;
    const auto frame = [this] { return canvas().picture().image->GetInfo().frameId; };
    const std::uint64_t before = frame();
    await([&] { return frame() > before + imagesOnTheWay || frame() < before; });
}

void ViewerUnderTest::signalCameraHost(const QString &signal)
{
    const int status = QProcess::execute(QStringLiteral("pkill"),
        {QStringLiteral("--signal"), signal, QStringLiteral("--parent"),
            QString::number(QCoreApplication::applicationPid()), QStringLiteral("CvxCameraHost")});
    if (status != 0)
        qFatal("There is no camera host.");
}

void ViewerUnderTest::call(const CameraConnection::Call &call)
{
    bool isDone = false;
    m_window->connection().run(call, m_window.get(), [&](const CvxCPP::CvxResult &result) {
        if (!result)
            qFatal("%s", result.text.c_str());
        isDone = true;
    });
    await([&] { return isDone; });
}

void ViewerUnderTest::write(const std::string &feature, const CvxCPP::NodeValue &value)
{
    call([&](CvxCPP::Device &device) { return device.Write(feature, value); });
}

double ViewerUnderTest::readFloat(const std::string &feature)
{
    double value = 0;
    call([&](CvxCPP::Device &device) { return device.ReadFloat(feature, value); });
    return value;
}

double ViewerUnderTest::meanOfNewPicture()
{
    awaitNewPicture();
    MeasureRequest request;
    request.wantsStatistics = true;
    return measure(rawImage(*canvas().picture().image), request).statistics.at(0).mean;
}
