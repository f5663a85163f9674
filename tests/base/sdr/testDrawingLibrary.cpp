/// Stands in for a library that draws; what matters is only whether it is loaded.
extern "C" int test_drawing_library()
{
    return 1;
}
