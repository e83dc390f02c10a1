// What a phone knows lives as long as the phone.
#include "Simulator/Base/Phone.hpp"

#include <gtest/gtest.h>

#include <string>

using Simulator::Phone;

namespace {

std::string gone;

struct Counter {
    int count = 0;
};
struct First {
    ~First() { gone += "first "; }
};
struct Second {
    ~Second() { gone += "second "; }
};
struct Farewell {
    ~Farewell() { ++Phone::part<Counter>().count; }
};

int starts = 0;
const Phone::AtStart countsStarts([](Phone&) { ++starts; });

}

TEST(PhoneLife, APartIsMadeWhenItIsFirstAskedFor)
{
    const Phone phone;
    EXPECT_FALSE(Phone::partIfMade<Counter>());
    Phone::part<Counter>().count = 7;
    EXPECT_EQ(Phone::partIfMade<Counter>()->count, 7);
    EXPECT_EQ(&Phone::part<Counter>(), Phone::partIfMade<Counter>());
}

TEST(PhoneLife, TheNextPhoneKnowsNothingOfTheLast)
{
    {
        const Phone last;
        Phone::part<Counter>().count = 7;
    }
    EXPECT_FALSE(Phone::partIfMade<Counter>());
    const Phone next;
    EXPECT_EQ(Phone::part<Counter>().count, 0);
}

TEST(PhoneLife, PartsGoInTheOppositeOrderOfTheirMaking)
{
    gone.clear();
    {
        const Phone phone;
        Phone::part<First>();
        Phone::part<Second>();
    }
    EXPECT_EQ(gone, "second first ");
}

TEST(PhoneLife, APartMayAskForAnotherAsItGoes)
{
    {
        const Phone phone;
        Phone::part<Counter>();
        Phone::part<Farewell>();
    }
    {
        const Phone phone;
        Phone::part<Farewell>();
    }
    EXPECT_FALSE(Phone::partIfMade<Counter>());
}

TEST(PhoneLife, EachPhoneDoesAtItsStartWhatTheRowsSay)
{
    starts = 0;
    for (int phones = 1; phones <= 2; ++phones) {
        Phone phone;
        EXPECT_EQ(starts, phones - 1);
        phone.start();
        EXPECT_EQ(starts, phones);
    }
}

TEST(PhoneLifeDeathTest, NothingIsKeptWhereThereIsNoPhone)
{
    EXPECT_DEATH(Phone::part<Counter>(), "lyr: there is no phone to keep a state");
}

TEST(PhoneLifeDeathTest, TwoPhonesInOneProcessAreRefused)
{
    const Phone phone;
    EXPECT_DEATH(Phone(), "lyr: a phone is there already");
}
