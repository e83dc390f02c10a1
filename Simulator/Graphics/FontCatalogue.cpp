// Keeps the registered faces by name, family and file. Nothing is fed to the text engine before it is drawn.
#include "Simulator/Graphics/FontCatalogue.hpp"

#include "Simulator/Graphics/FontFile.hpp"
#include "Simulator/Graphics/Typesetter.hpp"

#include <cstdlib>
#include <functional>
#include <map>
#include <set>

namespace Simulator::Graphics {

namespace {

/// A collection of more faces than this is no font.
constexpr long collectionLimit = 256;

std::string fileKey(const std::filesystem::path& path)
{
    const std::string& text = path.native();
    if (path.is_absolute() && text.find("//") == std::string::npos && text.find("/.") == std::string::npos)
        return text;
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return (error ? path : absolute).lexically_normal().string();
}

using FaceOpener = std::function<FacePointer(const FontFile& file, long faceIndex)>;

std::vector<std::shared_ptr<const Font>> facesOf(const std::shared_ptr<const FontFile>& file, const FaceOpener& open)
{
    std::vector<std::shared_ptr<const Font>> fonts;
    long count = 1;
    for (long index = 0; index < count; ++index) {
        const FacePointer face = open(*file, index);
        if (!face)
            continue;
        count = std::min(face->num_faces, collectionLimit);
        if (auto description = describe(face.get()))
            fonts.push_back(std::make_shared<const Font>(std::move(*description), file));
    }
    return fonts;
}

std::vector<std::shared_ptr<const Font>> facesOf(const std::shared_ptr<const FontFile>& file)
{
    return facesOf(file, [](const FontFile& plain, long index) { return openFace(plain, index); });
}

}

struct FontCatalogue::State {
    std::map<std::string, std::shared_ptr<const Font>, std::less<>> fontsByName;
    std::map<std::string, std::set<std::string>, std::less<>> namesByFamily;
    std::map<std::string, std::vector<std::string>> namesByFile;
    std::vector<std::shared_ptr<const Font>> systemFonts;
    std::unique_ptr<Typesetter> typesetter;

    /// The names that were new.
    std::vector<std::string> add(const std::vector<std::shared_ptr<const Font>>& fonts)
    {
        std::vector<std::string> added;
        for (const auto& font : fonts) {
            if (!fontsByName.emplace(font->postScriptName(), font).second)
                continue;
            namesByFamily[font->familyName()].insert(font->postScriptName());
            added.push_back(font->postScriptName());
        }
        return added;
    }

    RegistrationResult registerFaces(const std::vector<std::shared_ptr<const Font>>& fonts)
    {
        if (fonts.empty())
            return {RegistrationError::invalid, {}};
        auto added = add(fonts);
        if (added.empty())
            return {RegistrationError::alreadyRegistered, {}};
        return {RegistrationError::none, std::move(added)};
    }

    RegistrationResult registerFile(const std::filesystem::path& path, const FaceOpener& open)
    {
        const std::string key = fileKey(path);
        if (namesByFile.contains(key))
            return {RegistrationError::alreadyRegistered, {}};
        auto result = registerFaces(facesOf(std::make_shared<const FontFile>(path, FontFile::Origin::user), open));
        if (result)
            namesByFile.emplace(key, result.postScriptNames);
        return result;
    }

    bool remove(std::string_view name)
    {
        const auto found = fontsByName.find(name);
        if (found == fontsByName.end() || found->second->isSystemFont())
            return false;
        const auto family = namesByFamily.find(found->second->familyName());
        family->second.erase(found->first);
        if (family->second.empty())
            namesByFamily.erase(family);
        fontsByName.erase(found);
        return true;
    }
};

FontCatalogue::FontCatalogue(std::span<const std::filesystem::path> systemFontFiles)
    : m_state(std::make_unique<State>())
{
    for (const auto& path : systemFontFiles) {
        const auto fonts = facesOf(std::make_shared<const FontFile>(path, FontFile::Origin::system));
        for (const auto& font : fonts) {
            if (!m_state->add({font}).empty())
                m_state->systemFonts.push_back(font);
        }
    }
    m_state->typesetter = std::make_unique<Typesetter>(m_state->systemFonts);
}

FontCatalogue::~FontCatalogue() = default;

RegistrationResult FontCatalogue::registerFile(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return {RegistrationError::fileNotFound, {}};
    return m_state->registerFile(path, [](const FontFile& file, long index) { return openFace(file, index); });
}

RegistrationResult FontCatalogue::registerFile(const std::filesystem::path& path, const FontParts& parts)
{
    FontStream stream(parts);
    return m_state->registerFile(path, [&](const FontFile&, long index) { return openFace(stream, index); });
}

RegistrationResult FontCatalogue::registerData(std::span<const std::byte> bytes)
{
    return m_state->registerFaces(
        facesOf(std::make_shared<const FontFile>(std::vector<std::byte>(bytes.begin(), bytes.end()))));
}

RegistrationResult FontCatalogue::unregisterFile(const std::filesystem::path& path)
{
    const auto found = m_state->namesByFile.find(fileKey(path));
    if (found == m_state->namesByFile.end())
        return {RegistrationError::notRegistered, {}};
    RegistrationResult result;
    for (auto& name : found->second) {
        if (m_state->remove(name))
            result.postScriptNames.push_back(std::move(name));
    }
    m_state->namesByFile.erase(found);
    return result;
}

RegistrationResult FontCatalogue::unregisterFont(std::string_view postScriptName)
{
    std::string name(postScriptName);
    if (!m_state->remove(name))
        return {RegistrationError::notRegistered, {}};
    // A file whose last face goes may be registered anew.
    for (auto entry = m_state->namesByFile.begin(); entry != m_state->namesByFile.end(); ++entry) {
        if (std::erase(entry->second, name) > 0) {
            if (entry->second.empty())
                m_state->namesByFile.erase(entry);
            break;
        }
    }
    return {RegistrationError::none, {std::move(name)}};
}

std::optional<FaceNames> FontCatalogue::namesOf(std::span<const std::byte> bytes)
{
    const FacePointer face = openFace(bytes, 0);
    if (!face)
        return std::nullopt;
    auto description = describe(face.get());
    return description ? std::optional(std::move(description->names)) : std::nullopt;
}

std::vector<std::string> FontCatalogue::familyNames() const
{
    std::vector<std::string> names;
    for (const auto& entry : m_state->namesByFamily)
        names.push_back(entry.first);
    return names;
}

std::vector<std::string> FontCatalogue::fontNamesForFamily(std::string_view family) const
{
    const auto found = m_state->namesByFamily.find(family);
    if (found == m_state->namesByFamily.end())
        return {};
    return {found->second.begin(), found->second.end()};
}

std::shared_ptr<const Font> FontCatalogue::find(std::string_view postScriptName) const
{
    const auto found = m_state->fontsByName.find(postScriptName);
    return found == m_state->fontsByName.end() ? nullptr : found->second;
}

std::shared_ptr<const Font> FontCatalogue::systemFont(FontWeight weight) const
{
    return m_state->typesetter->systemFont(static_cast<int>(weight));
}

Typesetter& FontCatalogue::typesetter() const
{
    return *m_state->typesetter;
}

}
