// Translators can only be installed while an application object exists.
#include <QCoreApplication>
#include <gtest/gtest.h>

#include "strtable.h"
#include "texts.h"

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    qInitResources_texts();
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
