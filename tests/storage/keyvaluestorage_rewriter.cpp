// Rewrites a store until it is killed: the child process of the
// fault-injection test in tst_keyvaluestorage_durability. Each round loads
// the store, moves it on to the next generation and saves it, saying on
// stdout when a save starts and when it has ended:
//   keyvaluestorage_rewriter <file>
#include <tessaro/KeyValueStorage.h>

#include "rewriterstore.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

void report(const char* step, int generation)
{
    std::printf("%s %d\n", step, generation);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <file>\n", argv[0]);
        return 2;
    }
    const QString fileName = QFile::decodeName(argv[1]);
    for (;;) {
        int generation = 0;
        {
            KeyValueStorage store(fileName);
            generation = store.value(rewriter::generationKey(), 0).toInt() + 1;
            store.setValue(rewriter::generationKey(), generation);
            store.setValue(rewriter::payloadKey(), rewriter::payloadFor(generation));
            report("saving", generation);
        }
        report("saved", generation);
    }
}
