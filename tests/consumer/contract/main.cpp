#include "TinyDoc.h"

#include <cstdio>
#include <fstream>
#include <string>

/// Whether this process has loaded anything of Qt beyond Qt Core.
static bool widgetsLoaded()
{
    std::ifstream maps("/proc/self/maps");
    bool core = false, gui = false;
    for (std::string line; std::getline(maps, line);) {
        core = core || line.find("libQt6Core") != std::string::npos;
        gui = gui || line.find("libQt6Gui") != std::string::npos;
    }
    if (!core) std::puts("the libraries of this process cannot be read");
    return gui || !core;
}

int main()
{
    example::TinyDoc doc;
    ZolWDoc::inCommand(doc, QStringLiteral("two layers"), [&] {
        for (qint16 n : {10, 20}) {
            ZolWDoc::tLay lay;
            lay.gNr = n;
            lay.Name = QString::number(n);
            doc.layers().add(lay);
        }
    });
    std::printf("%d layers, %s widgets\n", doc.layers().count(), widgetsLoaded() ? "with" : "without");
}
