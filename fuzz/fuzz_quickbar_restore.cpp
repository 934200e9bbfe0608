// Arbitrary bytes as a stored quick access bar array (restoreQuickBar(QByteArray)):
// restoring must not crash, hang or allocate without bound, and the
// restored ribbon must save again.
#include "ribbon_fuzz.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    ribbonfuzz::initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return ribbonfuzz::run(ribbonfuzz::Entry::QuickBar, data, size);
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maxSize, unsigned int seed)
{
    return ribbonfuzz::mutateCompressed(data, size, maxSize, seed);
}
