#include "desktop/NoOpenGl.h"

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
    if (QGuiApplication::platformName() == QLatin1String("xcb")) // Other platforms would load OpenGL.
        // The call makes Qt read the variable. Its result does not matter.
        QOpenGLContext::supportsThreadedOpenGL();
    if (m_isSetByUs)
        qunsetenv(variable); // Otherwise the programs that this one starts would inherit the variable.
}
