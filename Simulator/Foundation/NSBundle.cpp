// Bundles on the phone. Resources are looked up afresh each time, since files may appear while the shell runs.
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSURL.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/FileAccess.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <vector>

namespace Simulator {

namespace {

/// "de-AT" is looked for as "de-AT", "de_AT" and "de".
std::vector<std::string> folderNamesOf(const std::string& language)
{
    std::string underscored = language;
    for (char& character : underscored)
        character = character == '-' ? '_' : character;
    return {language, underscored, language.substr(0, language.find_first_of("-_"))};
}

std::vector<std::string> languageFolders()
{
    std::vector<std::string> folders = {""};
    for (const auto& language : PhoneLocale::shared().languages) {
        for (const auto& name : folderNamesOf(language))
            folders.push_back(name + ".lproj/");
    }
    for (const char* fallback : {"Base.lproj/", "en.lproj/", "English.lproj/"})
        folders.emplace_back(fallback);
    return folders;
}

NS::URL urlOf(const NS::String& path)
{
    return path ? NS::URL::fileURLWithPath(path) : NS::URL();
}

class PhoneBundle : public StandIn {
public:
    using Root = PhoneBundle;

    bool initWithPath(const NS::String& path)
    {
        const auto phonePath = phonePathToRead(textOf(path));
        if (!phonePath || !PhoneFiles::shared().isFolder(*phonePath))
            return false;
        m_path = phonePath->ends_with('/') ? phonePath->substr(0, phonePath->size() - 1) : *phonePath;
        return true;
    }
    bool initWithUrl(const ObjC::Object& url) { return initWithPath(pathOfFileUrl(url)); }

    NS::String bundlePath() const { return stringOf(m_path); }
    NS::String resourcePath() const
    {
        const std::string resources = m_path + "/Resources";
        return stringOf(PhoneFiles::shared().isFolder(resources) ? resources : m_path);
    }
    NS::URL bundleUrl() const { return urlOf(bundlePath()); }
    NS::URL resourceUrl() const { return urlOf(resourcePath()); }

    NS::String pathForResource(const NS::String& name, const NS::String& type) const
    {
        return find(name, type, nullptr);
    }
    NS::String pathForResourceIn(const NS::String& name, const NS::String& type, const NS::String& folder) const
    {
        return find(name, type, folder);
    }
    NS::URL urlForResource(const NS::String& name, const NS::String& type) const
    {
        return urlOf(find(name, type, nullptr));
    }
    NS::URL urlForResourceIn(const NS::String& name, const NS::String& type, const NS::String& folder) const
    {
        return urlOf(find(name, type, folder));
    }

    NS::Dictionary infoDictionary() const
    {
        const auto info = NS::Dictionary::dictionaryWithContentsOfFile(stringOf(m_path + "/Info.plist"));
        return info ? info : NS::Dictionary::make();
    }
    ObjC::Object objectForInfoDictionaryKey(const NS::String& key) const
    {
        return key ? infoDictionary().send<ObjC::Object, "objectForKey:">(key) : ObjC::Object();
    }
    NS::String bundleIdentifier() const
    {
        return NS::Object(objectForInfoDictionaryKey("CFBundleIdentifier"_ns)).as<NS::String>();
    }

    /// A text that the table lacks is the given value, or the key itself if there is none.
    NS::String localizedString(const NS::String& key, const NS::String& value, const NS::String& table) const
    {
        const NS::String tableName = table && table.length() > 0 ? table : "Localizable"_ns;
        const auto texts = NS::Dictionary::dictionaryWithContentsOfFile(find(tableName, "strings"_ns, nullptr));
        if (const auto text = key ? texts.objectForKey<NS::String>(key) : NS::String())
            return text;
        return (value && value.length() > 0) || !key ? value : key;
    }

private:
    NS::String find(const NS::String& name, const NS::String& type, const NS::String& folder) const
    {
        const std::string extension = textOf(type);
        std::string file = textOf(name);
        if (file.empty())
            return nullptr;
        if (!extension.empty())
            file += (extension.front() == '.' ? "" : ".") + extension;
        const std::string within = folder && folder.length() > 0 ? textOf(folder) + "/" : std::string();
        for (const char* resources : {"/", "/Resources/"}) {
            for (const auto& language : languageFolders()) {
                const std::string path = m_path + resources + within + language + file;
                if (PhoneFiles::shared().exists(path))
                    return stringOf(path);
            }
        }
        return nullptr;
    }

    std::string m_path;
};

NS::Object newBundle(const NS::String& path)
{
    id allocated = classNamed("PhoneBundle").send<id, "alloc">();
    return NS::Object::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<"initWithPath:">(), path));
}

IMP stockInit = nullptr;
IMP stockBundle = nullptr;

/// GNUstep's own bundles are the host's.
id NSBundle_initWithPath(id self, SEL command, NS::String path)
{
    if (!phonePathToRead(textOf(path)))
        return ObjC::callImplementation<id>(stockInit, self, command, path);
    ObjC::release(self);
    return newBundle(path).leak();
}

id NSBundle_initWithUrl(id self, SEL, ObjC::Object url)
{
    return ObjC::sendMessage<id>(self, ObjC::selector<"initWithPath:">(), pathOfFileUrl(url));
}

ObjC::Object NSBundle_bundleWithPath(id self, SEL command, NS::String path)
{
    if (!phonePathToRead(textOf(path)))
        return ObjC::callImplementation<ObjC::Object>(stockBundle, self, command, path);
    return newBundle(path);
}

ObjC::Object NSBundle_bundleWithUrl(ObjC::Object self, SEL, ObjC::Object url)
{
    return self.send<ObjC::Object, "bundleWithPath:">(pathOfFileUrl(url));
}

}

static const Mending nsBundle("NSBundle", [] {
    const Class type = objc_getClass("NSBundle");
    stockInit = class_getMethodImplementation(type, sel_registerName("initWithPath:"));
    stockBundle = method_getImplementation(class_getClassMethod(type, sel_registerName("bundleWithPath:")));
    replaceInFamily<NSBundle_initWithPath>("NSBundle", "initWithPath:");
    replaceInFamily<NSBundle_initWithUrl>("NSBundle", "initWithURL:");
    replaceClassMethod<NSBundle_bundleWithPath>("NSBundle", "bundleWithPath:");
    replaceClassMethod<NSBundle_bundleWithUrl>("NSBundle", "bundleWithURL:");
});

static const StandInClass phoneBundle("PhoneBundle", "NSBundle", [](Binder<PhoneBundle>& binder) {
    binder.init<"initWithPath:", &PhoneBundle::initWithPath>()
        .init<"initWithURL:", &PhoneBundle::initWithUrl>()
        .def<"bundlePath", &PhoneBundle::bundlePath>()
        .def<"resourcePath", &PhoneBundle::resourcePath>()
        .def<"bundleURL", &PhoneBundle::bundleUrl>()
        .def<"resourceURL", &PhoneBundle::resourceUrl>()
        .def<"pathForResource:ofType:", &PhoneBundle::pathForResource>()
        .def<"pathForResource:ofType:inDirectory:", &PhoneBundle::pathForResourceIn>()
        .def<"URLForResource:withExtension:", &PhoneBundle::urlForResource>()
        .def<"URLForResource:withExtension:subdirectory:", &PhoneBundle::urlForResourceIn>()
        .def<"infoDictionary", &PhoneBundle::infoDictionary>()
        .def<"objectForInfoDictionaryKey:", &PhoneBundle::objectForInfoDictionaryKey>()
        .def<"bundleIdentifier", &PhoneBundle::bundleIdentifier>()
        .def<"localizedStringForKey:value:table:", &PhoneBundle::localizedString>()
        .add();
    refuseInherited("PhoneBundle", "NSBundle");
});

}
