#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <gtest/gtest.h>

#include <vector>

#include "strtable.h"

namespace {

const char* const kTranslatedCodes[] = {"cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb", "rus",
                                        "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};

std::vector<QString> EnglishTexts()
{
    std::vector<QString> texts;
    for (int id = 0; id < StrTable::StrCount; ++id) {
        texts.push_back(StrTable::LoadStr(id));
    }
    return texts;
}

QSet<QString> Placeholders(const QString& text)
{
    QSet<QString> found;
    QRegularExpressionMatchIterator it = QRegularExpression("%\\d+").globalMatch(text);
    while (it.hasNext()) {
        found.insert(it.next().captured());
    }
    return found;
}

// Installs one compiled-in catalogue for the duration of a test.
class Catalogue : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override
    {
        english_ = EnglishTexts();
        const QString path = QStringLiteral(":/%1.qm").arg(QLatin1String(GetParam()));
        ASSERT_TRUE(translator_.load(path)) << qPrintable(path) << ": cannot be loaded";
        ASSERT_FALSE(translator_.isEmpty()) << qPrintable(path) << ": translates nothing";
        ASSERT_TRUE(QCoreApplication::installTranslator(&translator_)) << qPrintable(path);
    }
    void TearDown() override { QCoreApplication::removeTranslator(&translator_); }

    std::vector<QString> english_;
    QTranslator translator_;
};

TEST_P(Catalogue, TranslatesTheLauncherTexts)
{
    for (int id : {461, 510}) {
        const QString text = StrTable::LoadStr(id);
        EXPECT_FALSE(text.trimmed().isEmpty()) << GetParam() << " row " << id;
        EXPECT_NE(text, english_[id]) << GetParam() << " row " << id << " is still English";
        EXPECT_TRUE(text.contains(QLatin1String("Calderix Drive")))
            << GetParam() << " row " << id << " lost the product name: " << text.toStdString();
    }
    EXPECT_EQ(StrTable::LoadStr(493).toStdString(), "Calderix Drive") << GetParam();
}

// A translation that drops or invents a placeholder makes the caller's arg()
// print a stray "%1" or lose the value, so every row is checked.
TEST_P(Catalogue, KeepsPlaceholdersAndTheProductName)
{
    int translated = 0;
    for (int id = 0; id < StrTable::StrCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        if (text == english_[id]) {
            continue;
        }
        ++translated;
        const std::string shown = text.toStdString();
        EXPECT_FALSE(text.trimmed().isEmpty()) << GetParam() << " row " << id;
        EXPECT_EQ(Placeholders(text), Placeholders(english_[id]))
            << GetParam() << " row " << id << ": " << shown;
        if (english_[id].contains(QLatin1String("Calderix Drive"))) {
            EXPECT_TRUE(text.contains(QLatin1String("Calderix Drive")))
                << GetParam() << " row " << id << ": " << shown;
        }
        EXPECT_FALSE(text.contains(QLatin1Char('\r'))) << GetParam() << " row " << id << ": " << shown;
    }
    EXPECT_GE(translated, 3) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Codes, Catalogue, ::testing::ValuesIn(kTranslatedCodes),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

// The English catalogue exists so that every code has one, but it must never
// change a text.
TEST(EnglishCatalogue, LeavesEveryTextAsItIs)
{
    const std::vector<QString> english = EnglishTexts();
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/enu.qm"))) << ":/enu.qm cannot be loaded";
    // An empty translator is installed all the same; the result only says
    // whether it holds anything.
    QCoreApplication::installTranslator(&translator);
    for (int id = 0; id < StrTable::StrCount; ++id) {
        EXPECT_EQ(StrTable::LoadStr(id), english[id]) << "row " << id;
    }
    QCoreApplication::removeTranslator(&translator);
}

} // namespace
