#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace {

/// Chooses one of the locales in LOCALE_FOLDER. False if it is not there or its decimal point is
/// that of the "C" locale.
bool useLocale(const char* name) {
    return ::setenv("LOCPATH", LOCALE_FOLDER, true) == 0 &&
           std::setlocale(LC_ALL, name) != nullptr &&
           std::strcmp(std::localeconv()->decimal_point, ".") != 0;
}

}  // namespace

/// Runs all tests in the locale FERNWICK_TEST_LOCALE, or in the "C" locale if it is not set.
int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (const char* const name = std::getenv("FERNWICK_TEST_LOCALE");
        name != nullptr && !useLocale(name)) {
        std::cerr << "No suitable locale " << name << " in " LOCALE_FOLDER "\n";
        return EXIT_FAILURE;
    }
    return RUN_ALL_TESTS();
}
