#include "tools/imageviewer/ViewerWindow.h"
#include "tools/kit/start/ToolApplication.h"

int main(int argc, char *argv[])
{
    return ToolApplication::run(argc, argv);
}
