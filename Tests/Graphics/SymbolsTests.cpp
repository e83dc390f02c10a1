// The symbols of the lock screen.
#include "SampleFonts.hpp"
#include "SamplePictures.hpp"

#include "Simulator/Graphics/Symbols.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace Simulator::Graphics {

using namespace Samples;

TEST(Symbols, HaveThoseOfTheStockLockScreen)
{
    const SymbolSet symbols(SYMBOL_FOLDER);
    for (const char* name : {"flashlight.off.fill", "flashlight.on.fill", "camera.fill", "lock.fill", "lock.open.fill",
             "wifi", "cellularbars", "battery.100", "battery.100.bolt"})
        EXPECT_TRUE(symbols.contains(name)) << name;
}

TEST(Symbols, HaveThoseOfControlsAndPanels)
{
    const SymbolSet symbols(SYMBOL_FOLDER);
    for (const char* name : {"text.alignleft", "text.aligncenter", "text.alignright", "1.circle", "2.circle",
             "3.circle", "arrow.left.and.right", "arrow.up.and.down", "alarm.fill", "calendar", "info.circle",
             "xmark.circle.fill", "battery.25", "bolt.fill", "bolt.slash.fill", "checkmark"})
        EXPECT_TRUE(symbols.contains(name)) << name;
}

TEST(Symbols, AllDrawSomething)
{
    const SymbolSet symbols(SYMBOL_FOLDER);
    ASSERT_GT(symbols.names().size(), 50u);
    for (const auto& name : symbols.names()) {
        const auto image = symbols.symbol(name);
        ASSERT_TRUE(image) << name;
        EXPECT_TRUE(image->isDrawing());
        EXPECT_FALSE(drawn(*image, 40, 40).isBlank()) << name;
    }
}

TEST(Symbols, GrowWithThePointSize)
{
    const SymbolSet symbols(SYMBOL_FOLDER);
    const Size drawnSize = symbols.symbol("lock.fill")->size();
    const Size doubled = symbols.symbol("lock.fill", 34)->size();
    EXPECT_DOUBLE_EQ(doubled.width, 2 * drawnSize.width);
    EXPECT_DOUBLE_EQ(doubled.height, 2 * drawnSize.height);
    EXPECT_EQ(symbols.symbol("lock.fill", -3)->size(), drawnSize);
    EXPECT_EQ(symbols.symbol("lock.fill", std::nan(""))->size(), drawnSize);
}

TEST(Symbols, AskedTwiceAreTheSamePicture)
{
    const SymbolSet symbols(SYMBOL_FOLDER);
    EXPECT_EQ(symbols.symbol("wifi", 20), symbols.symbol("wifi", 20));
}

TEST(Symbols, UnknownNamesHaveNone)
{
    const SymbolSet symbols(SYMBOL_FOLDER);
    for (const char* name : {"", "no.such.symbol", "../Symbols/wifi", "/etc/passwd", "."}) {
        EXPECT_FALSE(symbols.symbol(name)) << name;
        EXPECT_FALSE(symbols.contains(name)) << name;
    }
    EXPECT_FALSE(SymbolSet("/nowhere").symbol("wifi"));
    EXPECT_TRUE(SymbolSet("/nowhere").names().empty());
}

TEST(Symbols, ABrokenDrawingIsNone)
{
    TemporaryFolder folder;
    folder.write("broken.svg", Bytes(50, std::byte{'<'}));
    folder.write("empty.svg", {});
    const SymbolSet symbols(folder.path());
    EXPECT_FALSE(symbols.symbol("broken"));
    EXPECT_FALSE(symbols.symbol("empty"));
}

}
