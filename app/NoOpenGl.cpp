#include "app/NoOpenGl.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QOpenGLContext>

namespace {

constexpr char variable[] = "QT_XCB_GL_INTEGRATION";

} // namespace

NoOpenGl::NoOpenGl() : m_isSetByUs(!qEnvironmentVariableIsSet(variable))
{
    if (m_isSetByUs)
        qputenv(variable, "none");
}

NoOpenGl::~NoOpenGl()
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) // On other platforms the call loads OpenGL.
        QOpenGLContext::supportsThreadedOpenGL(); // Called only because it makes Qt read the variable.
    if (m_isSetByUs)
        qunsetenv(variable); // The tools that we start would inherit it.
}
