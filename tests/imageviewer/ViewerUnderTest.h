#pragma once

#include "tests/toolundertest/ToolUnderTest.h"
#include "tools/imageviewer/ViewerWindow.h"
#include "tools/kit/canvas/ImageCanvas.h"

/// The window of the Image Viewer on the real SDK, and how a person or a program uses it.
class ViewerUnderTest : public ToolUnderTest<ViewerWindow>
{
public:
    using ToolUnderTest::ToolUnderTest;

    ImageCanvas &canvas() { return *find<ImageCanvas>(); }

    void awaitPicture();

    /// Waits until a picture is shown that was exposed after this call.
    void awaitNewPicture();

    /// Returns the mean of all values of a picture that was exposed after this call.
    double meanOfNewPicture();

    /// Saves a snapshot and waits until all its files are complete. Returns the path of the picture.
    QString saveSnapshot();
};
