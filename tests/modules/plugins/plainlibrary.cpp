// An ordinary shared library: no plug-in metadata at all.
extern "C" __attribute__((visibility("default"))) int vorlin_test_plain_library()
{
    return 42;
}
