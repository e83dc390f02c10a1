// Lines out of a stream of bytes.
#include "Simulator/Control/LineReader.hpp"

#include <gtest/gtest.h>

using Simulator::Control::LineReader;

namespace {

std::string nextOf(LineReader& reader)
{
    const auto line = reader.next();
    if (!line)
        return "(none)";
    return line->isTooLong ? "(too long)" : line->text;
}

}

TEST(LineReader, JoinsAndSplitsWhatArrives)
{
    LineReader reader(100);
    reader.feed("ab");
    EXPECT_EQ(nextOf(reader), "(none)");
    reader.feed("c\n\nde\nf");
    EXPECT_EQ(nextOf(reader), "abc");
    EXPECT_EQ(nextOf(reader), "");
    EXPECT_EQ(nextOf(reader), "de");
    EXPECT_EQ(nextOf(reader), "(none)");
    reader.feed("g\n");
    EXPECT_EQ(nextOf(reader), "fg");
}

TEST(LineReader, TakesALastLineWithoutNewline)
{
    LineReader reader(100);
    reader.feed("a\nb");
    reader.finish();
    EXPECT_EQ(nextOf(reader), "a");
    EXPECT_EQ(nextOf(reader), "b");
    EXPECT_EQ(nextOf(reader), "(none)");
}

TEST(LineReader, HasNoLineAfterALastNewline)
{
    LineReader reader(100);
    reader.feed("a\n");
    reader.finish();
    EXPECT_EQ(nextOf(reader), "a");
    EXPECT_EQ(nextOf(reader), "(none)");
}

TEST(LineReader, DropsALineThatIsTooLongAndGoesOnAfterIt)
{
    LineReader reader(4);
    reader.feed("1234\n12345\nab\n");
    EXPECT_EQ(nextOf(reader), "1234");
    EXPECT_EQ(nextOf(reader), "(too long)");
    EXPECT_EQ(nextOf(reader), "ab");
    for (int i = 0; i < 10; ++i) {
        reader.feed("xxxxx");
        EXPECT_EQ(nextOf(reader), "(none)");
    }
    reader.feed("x\nok\n");
    EXPECT_EQ(nextOf(reader), "(too long)");
    EXPECT_EQ(nextOf(reader), "ok");
}

TEST(LineReader, ReportsALastLineThatIsTooLong)
{
    LineReader reader(4);
    reader.feed("12345");
    EXPECT_EQ(nextOf(reader), "(none)");
    reader.finish();
    EXPECT_EQ(nextOf(reader), "(too long)");
}
