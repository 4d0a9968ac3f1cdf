// Runs tests that need windows: the program's look on whatever platform the environment names.
#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/look.h"

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    corvana::VestiProgramma(qt);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
