#include "tests/imageviewer/ViewerUnderTest.h"

#include "tools/kit/measure/Measurements.h"

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

double ViewerUnderTest::meanOfNewPicture()
{
    awaitNewPicture();
    MeasureRequest request;
    request.wantsStatistics = true;
    return measure(rawImage(*canvas().picture().image), request).statistics.at(0).mean;
}

QString ViewerUnderTest::saveSnapshot()
{
    QString saved;
    const auto connection = QObject::connect(
        find<SnapshotSaver>(), &SnapshotSaver::saved, [&saved](const QString &path) { saved = path; });
    action(QStringLiteral("Save snapshot")).trigger();
    await([&saved] { return !saved.isEmpty(); });
    QObject::disconnect(connection);
    return saved;
}
