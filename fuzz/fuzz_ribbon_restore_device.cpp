// Arbitrary bytes as a ribbon layout stream on a device (restore(QIODevice&)):
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
    return ribbonfuzz::run(ribbonfuzz::Entry::LayoutDevice, data, size);
}
