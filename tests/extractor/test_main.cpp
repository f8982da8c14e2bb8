// Signals, spies and string lookups need an application object; the string
// table must be filled before the extractor asks it for its label.
#include <QCoreApplication>
#include <gtest/gtest.h>

#include "strtable.h"

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
