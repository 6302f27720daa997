#include "app/NoOpenGl.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QOpenGLContext>

namespace {

constexpr char variable[] = "QT_XCB_GL_INTEGRATION";

} // namespace

NoOpenGl::NoOpenGl() : m_isOurs(!qEnvironmentVariableIsSet(variable))
{
    if (m_isOurs)
        qputenv(variable, "none");
}

NoOpenGl::~NoOpenGl()
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) // Elsewhere the question would load it.
        QOpenGLContext::supportsThreadedOpenGL(); // Asked for the decision only.
    if (m_isOurs)
        qunsetenv(variable); // Or the tools would do without as well.
}
