// A module whose start-up needs a function that no library has.

extern "C" int qdacore_test_function_that_nobody_has();

namespace {

[[maybe_unused]] const int result = qdacore_test_function_that_nobody_has();

}  // namespace
