// Prints the display language chosen for the locale of its environment.
// With --without-catalogues the compiled-in catalogues are unregistered
// first, as if they had been left out of the build.
#include <cstdio>
#include <cstring>

#include "KorvaneLocale.h"
#include "texts.h"

int main(int argc, char** argv)
{
    qInitResources_texts();
    if (argc > 1 && std::strcmp(argv[1], "--without-catalogues") == 0) {
        qCleanupResources_texts();
    }
    const QByteArray code = KorvaneLocale::getDefaultLanguage().toLatin1();
    if (std::printf("%s\n", code.constData()) < 0 || std::fflush(stdout) != 0) {
        return 2;
    }
    return 0;
}
