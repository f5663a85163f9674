extern "C" int ap_test_answer()
{
    return 42;
}
