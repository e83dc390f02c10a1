// objc.*, global.*: the classes and variables behind it all.
#include "Simulator/Control/Domains/Invocation.hpp"
#include "Simulator/Control/Domains/PhoneContext.hpp"
#include "Simulator/Control/Domains/RuntimeValues.hpp"

#include "Simulator/Loader/ExtensionLoader.hpp"
#include "Simulator/Loader/HookRecord.hpp"

namespace Simulator::Control {

namespace {

id classNamed(const std::string& name)
{
    Class found = objc_lookUpClass(name.c_str());
    if (!found)
        throwNotFound("no class " + quote(name));
    return reinterpret_cast<id>(found);
}

NS::Object instanceOf(PhoneContext& context, const std::string& className)
{
    auto object = context.shell.instance(className);
    if (!object)
        throwNotFound("the shell has no object of the class " + quote(className));
    return object;
}

NS::Object keptObject(PhoneContext& context, const std::string& name)
{
    auto found = context.named.find(name);
    if (found == context.named.end())
        throwNotFound("no object is kept as " + quote(name));
    return found->second;
}

/// Whether the value names an object: one member, one of the four ways.
bool isReference(const Json& json)
{
    return json.is_object() && json.size() == 1 && json.begin()->is_string()
        && (json.contains("class") || json.contains("instance") || json.contains("id") || json.contains("named"));
}

NS::Object referenced(PhoneContext& context, const Json& reference)
{
    if (reference.contains("class"))
        return NS::Object(classNamed(reference.at("class")));
    if (reference.contains("instance"))
        return instanceOf(context, reference.at("instance"));
    if (reference.contains("id"))
        return NS::Object(context.viewWithId(reference.at("id")).object());
    return keptObject(context, reference.at("named"));
}

Json sendMessageByHand(PhoneContext& context, const Json& parameters)
{
    auto target = referenced(context, parameters.at("target"));
    auto readObject
        = [&context](const Json& json) { return isReference(json) ? referenced(context, json) : objectOfJson(json); };
    return {{"value",
        invoke(target.raw(), parameters.at("selector"), parameters.value("args", Json::array()),
            parameters.value("super", false), readObject)}};
}

void keepNewObject(PhoneContext& context, const Json& parameters)
{
    id type = classNamed(parameters.at("class"));
    id object = ObjC::sendMessage<id>(ObjC::sendMessage<id>(type, ObjC::selector<"alloc">()), ObjC::selector<"init">());
    context.named[parameters.at("name")] = ObjC::Object::adopting(object);
}

/// What became of a row; null where it was left out.
const HookRecord* recordOf(const ObjC::HookRow& row)
{
    const auto isOf = [&row](const HookRecord& record) {
        return record.selectorName == row.selectorName && record.className == row.className
            && (record.kind == HookRecord::Kind::hook) == (row.stock != nullptr);
    };
    const auto found = std::ranges::find_if(hookRecords(), isOf);
    return found == hookRecords().end() ? nullptr : &*found;
}

Json describeHook(const ObjC::HookRow& row, const char* table)
{
    const HookRecord* record = recordOf(row);
    return {{"class", objc_getClass(row.className) ? Json(row.className) : Json()}, {"selector", row.selectorName},
        {"kind", row.stock ? "hook" : "added"}, {"types", record ? record->types : ""},
        {"resolved", record && (!row.stock || !record->types.empty())}, {"table", table}};
}

/// Every row of the tables that were installed.
Json describeHooks()
{
    Json hooks = Json::array();
    for (const ObjC::HookTable& table : ExtensionLoader::shared().hookTables()) {
        for (const ObjC::HookRow& row : table.all())
            hooks.push_back(describeHook(row, table.name));
    }
    return hooks;
}

template <class T>
T valueOf(const Product::VariableRow& variable)
{
    return *static_cast<const T*>(variable.address);
}

Json globalValue(const std::string& name)
{
    const auto* variable = ExtensionLoader::shared().variable(name);
    if (!variable)
        throwNotFound("the extension has no variable " + quote(name));
    const std::string_view type = variable->type;
    if (type == "@")
        return jsonOfObject(NS::Object(valueOf<id>(*variable)));
    if (type == "B")
        return valueOf<bool>(*variable);
    if (type == "d")
        return valueOf<double>(*variable);
    if (type == "Q")
        return valueOf<unsigned long>(*variable);
    throw ProtocolError(ErrorCode::internal,
        "the variable " + quote(name) + " is of a type that is not known: " + quote(variable->type));
}

}

void addRuntimeMethods(PhoneContext& context)
{
    context.add("objc.send", [&context](const Json& parameters) { return sendMessageByHand(context, parameters); });
    context.add("objc.new", [&context](const Json& parameters) {
        keepNewObject(context, parameters);
        return Json::object();
    });
    context.add("objc.hooks", [](const Json&) { return Json{{"hooks", describeHooks()}}; });
    context.add("global.get", [](const Json& parameters) {
        return Json{{"value", globalValue(parameters.at("name"))}};
    });
}

}
