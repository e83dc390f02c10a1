// Reads views out of replies; a member that should be there and is not fails the test by an exception that names it.
#include "Tests/Support/Views.hpp"

namespace Support {

namespace {

template <typename T>
std::optional<T> ifThere(const Json& reply, const char* name)
{
    if (!reply.contains(name) || reply[name].is_null())
        return std::nullopt;
    return reply[name].get<T>();
}

std::vector<View> childrenOf(const Json& reply)
{
    std::vector<View> children;
    if (const auto list = reply.find("children"); list != reply.end()) {
        for (const Json& child : *list)
            children.emplace_back(child);
    }
    return children;
}

}

View::View(const Json& reply)
    : className(reply.at("class"))
    , id(ifThere<std::string>(reply, "id").value_or(""))
    , frame(reply.at("frame"))
    , bounds(reply.at("bounds"))
    , hidden(reply.at("hidden"))
    , alpha(reply.at("alpha"))
    , onScreen(reply.at("onScreen"))
    , transform(reply.at("transform"))
    , background(ifThere<std::string>(reply, "background"))
    , tint(ifThere<std::string>(reply, "tint"))
    , children(childrenOf(reply))
    , json(reply)
{
}

const View* View::find(const std::string& wanted) const
{
    if (id == wanted)
        return this;
    for (const View& child : children) {
        if (const View* found = child.find(wanted))
            return found;
    }
    return nullptr;
}

Label::Label(const Json& reply)
    : View(reply)
    , text(ifThere<std::string>(reply, "text").value_or(""))
    , runs(reply.value("runs", Json::array()))
    , fontName(reply.at("font").at("name"))
    , fontSize(reply.at("font").at("size"))
    , textColour(ifThere<std::string>(reply, "textColor"))
    , alignment(reply.at("alignment"))
    , lines(reply.at("lines"))
{
}

Range::Range(const Json& reply)
    : View(reply)
    , value(reply.at("value"))
    , minimum(reply.at("minimum"))
    , maximum(reply.at("maximum"))
    , step(ifThere<double>(reply, "step"))
{
}

Segments::Segments(const Json& reply)
    : View(reply)
    , segments(reply.at("segments"))
    , selected(reply.at("selected"))
{
}

Picker::Picker(const Json& reply)
    : View(reply)
    , rows(reply.at("rows"))
    , selected(reply.at("selected"))
{
}

ColourWell::ColourWell(const Json& reply)
    : View(reply)
    , title(ifThere<std::string>(reply, "title"))
    , selected(ifThere<std::string>(reply, "selected"))
{
}

Button::Button(const Json& reply)
    : View(reply)
    , title(ifThere<std::string>(reply, "title"))
    , symbol(ifThere<std::string>(reply, "symbol"))
{
}

}
