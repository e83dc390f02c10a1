// Registration of font files with the text system. A file that is no font is logged and left alone.
#include "Tweak/Fonts.hpp"

#include "Platform/CoreText/CTFontManager.hpp"
#include "Platform/Foundation/CFBase.hpp"
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSFileManager.hpp"
#include "Platform/Foundation/NSLog.hpp"
#include "Platform/Foundation/NSURL.hpp"
#include "Platform/UIKit/UIFont.hpp"
#include "Product/Names.hpp"

#include <array>
#include <iterator>

namespace LYR {

LYR_VARIABLE(ObjC::Variable<NS::Dictionary>, matchDict);
LYR_VARIABLE(ObjC::Variable<NS::String>, _font1);
LYR_VARIABLE(ObjC::Variable<NS::String>, _font2);
LYR_VARIABLE(ObjC::Variable<NS::String>, _font3);
LYR_VARIABLE(ObjC::Variable<NS::String>, _font4);
LYR_VARIABLE(ObjC::Variable<NS::String>, _font5);
LYR_VARIABLE(ObjC::Variable<NS::MutableArray>, availableFonts);

namespace {

using GraphicsFont = CF::Owned<CGFontRef, CGFontRelease>;
using DataProvider = CF::Owned<CGDataProviderRef, CGDataProviderRelease>;

struct TextFontRelease {
    static void release(CTFontRef font) { CFRelease(font); }
};
using TextFont = CF::Owned<CTFontRef, TextFontRelease::release>;

struct BuiltInFont {
    NS::String (*path)();
    ObjC::Variable<NS::String>* name;
};

/// Tells one file, and one state of it, from another. All zeros are what no file has.
struct FileState {
    unsigned long long size = 0;
    unsigned long number = 0;
    double modified = 0;
    bool operator==(const FileState&) const = default;
};

FileState stateOf(const NS::FileAttributes& file)
{
    return {file.fileSize(), file.fileSystemFileNumber(), file.fileModificationDate().timeIntervalSinceReferenceDate()};
}

/// In the order of loading.
const BuiltInFont builtInFonts[] = {
    {[] { return LYR_PREFIX LYR_RESOURCES "time1.ttf"_ns; }, &_font1},
    {[] { return LYR_PREFIX LYR_RESOURCES "time2.ttf"_ns; }, &_font2},
    {[] { return LYR_PREFIX LYR_RESOURCES "time3.ttf"_ns; }, &_font3},
    {[] { return LYR_PREFIX LYR_RESOURCES "time4.ttf"_ns; }, &_font4},
    {[] { return LYR_PREFIX LYR_RESOURCES "date.ttf"_ns; }, &_font5},
};

/// The families that the installed fonts were gathered from, and nothing was registered since.
constinit ObjC::Variable<NS::Array> gatheredFamilies;

/// What each of them was like when it was read last.
constinit std::array<FileState, std::size(builtInFonts)> readStates;

void logFailure(const NS::String& prefix, id error)
{
    auto description = error ? NS::String::adopting(CFErrorCopyDescription(error)) : NS::String();
    NS::log(prefix.stringByAppendingString(description ? description : "(null)"_ns));
    ObjC::release(error);
}

GraphicsFont graphicsFontFrom(const NS::Data& data)
{
    if (!data)
        return GraphicsFont();
    DataProvider provider(CGDataProviderCreateWithCFData(data.raw()));
    return GraphicsFont(provider ? CGFontCreateWithDataProvider(provider.get()) : nullptr);
}

NS::String familyNameOf(const GraphicsFont& font)
{
    if (!font)
        return {};
    TextFont textFont(CTFontCreateWithGraphicsFont(font.get(), 36, nullptr, nullptr));
    return textFont ? NS::String::adopting(CTFontCopyFamilyName(textFont.get())) : NS::String();
}

NS::Data readFont(const NS::String& path)
{
    auto data = NS::Data::dataWithContentsOfFile(path);
    NS::log("Font path: "_ns.stringByAppendingString(path));
    return data;
}

/// Registers the font in a file's bytes; answers its PostScript name, or nil if they are no font.
NS::String registerGraphicsFont(const NS::Data& data)
{
    GraphicsFont font = graphicsFontFrom(data);
    gatheredFamilies = NS::Array();
    id error = nullptr;
    if (!font || !CTFontManagerRegisterGraphicsFont(font.get(), &error))
        logFailure("Failed to load font: "_ns, error);
    return font ? NS::String::adopting(CGFontCopyPostScriptName(font.get())) : NS::String();
}

void registerFile(const NS::String& path)
{
    auto url = NS::URL::fileURLWithPath(path);
    CTFontManagerUnregisterFontsForURL(url.raw(), CTFontManagerScope::process, nullptr);
    id error = nullptr;
    if (!CTFontManagerRegisterFontsForURL(url.raw(), CTFontManagerScope::process, &error))
        logFailure("[LYRFont] Failed to load font: "_ns, error);
}

void enter(const NS::MutableDictionary& table, const NS::String& name, const NS::String& path)
{
    if (name)
        table.setObject(path, name);
}

}

void registerUserFonts()
{
    auto folder = LYR_PREFIX LYR_FONTS "/"_ns;
    auto table = NS::MutableDictionary::dictionary();
    auto names = NS::FileManager::defaultManager().contentsOfDirectoryAtPath(folder);
    // The text system gathers its own fonts before it is given more.
    UI::Font::familyNames();
    for (unsigned long i = 0; i < names.count(); ++i) {
        ObjC::AutoreleasePool pool;
        auto path = folder.stringByAppendingString(names.at<NS::String>(i));
        registerFile(path);
        enter(table, familyNameOf(graphicsFontFrom(NS::Data::dataWithContentsOfFile(path))), path);
        enter(table, registerGraphicsFont(readFont(path)), path);
    }
    matchDict = table.copy();
}

void loadBuiltInFonts()
{
    auto files = NS::FileManager::defaultManager();
    for (std::size_t i = 0; i < std::size(builtInFonts); ++i) {
        auto path = builtInFonts[i].path();
        auto state = stateOf(files.attributesOfItemAtPath(path));
        if (state == readStates[i] || !files.fileExistsAtPath(path))
            continue;
        auto data = readFont(path);
        if (auto name = registerGraphicsFont(data))
            *builtInFonts[i].name = name;
        // What could not be read is tried again.
        readStates[i] = data ? state : FileState();
    }
}

unsigned long rebuildAvailableFonts()
{
    auto families = UI::Font::familyNames();
    if (availableFonts && gatheredFamilies && families.isEqualToArray(gatheredFamilies.reference()))
        return availableFonts->count();
    auto fonts = NS::MutableArray::make();
    for (unsigned long i = 0; i < families.count(); ++i) {
        auto names = UI::Font::fontNamesForFamilyName(families.at<NS::String>(i));
        for (unsigned long j = 0; j < names.count(); ++j)
            fonts.addObject(names.at<NS::String>(j));
    }
    fonts.sortUsingSelector<"localizedCaseInsensitiveCompare:">();
    availableFonts = fonts.mutableCopy();
    gatheredFamilies = families;
    return availableFonts->count();
}

}
