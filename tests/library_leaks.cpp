// What the leak sanitizer asks for at the end: libraries keep what they allocate once, or where a file is broken.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\nleak:libxy\nleak:argz_add_sep"; }
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
// NOLINTEND(bugprone-reserved-identifier)
