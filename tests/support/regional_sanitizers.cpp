// What the leak sanitizer is to pass over in tests of regional settings: where these lie in a
// folder of LOCPATH, the C library never frees the list of such folders that it makes for
// std::locale. Its name has two underscores in front where the machine has the library's symbols.
extern "C" {
const char* __lsan_default_suppressions();

const char* __lsan_default_suppressions() {
    return "leak:argz_add_sep\n";
}
}
