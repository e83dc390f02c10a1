// Registers a stand-in class: a C++ struct behind an Objective-C class of the phone.
//
//     Binder<UILabel>("UILabel", "UIView")
//         .property<"text", "setText:", &UILabel::text, &UILabel::changed>()
//         .def<"sizeToFit", &UILabel::sizeToFit>()
//         .init<"initWithFrame:", &UILabel::initWithFrame>()
//         .ivar<"_font">()
//         .add();
//
// Arity and encoding are checked and built by the compiler. What the phone's system does not have is left out. The
// struct derives from the struct of the superclass, and the first one of such a line from StandIn, with `using Root =
// ThatStruct`.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Simulator/Runtime/MethodTable.hpp"
#include "Simulator/Runtime/StandInRegistry.hpp"
#include "Simulator/Runtime/System.hpp"

namespace Simulator {

/// The C++ side of an object that is known to be of the stand-in's class.
template <class T>
inline T& standIn(id object)
{
    static_assert(std::is_base_of_v<StandIn, T>, "a stand-in derives from StandIn");
    return static_cast<T&>(*StandInRegistry::find(object));
}

/// The C++ side of any object; null if it is nil or no stand-in of that kind.
template <class T>
inline T* standInOrNull(const ObjC::Object& object)
{
    return object ? dynamic_cast<T*>(StandInRegistry::find(object.raw())) : nullptr;
}

/// Calls a method as the superclass of `Super`'s registration has it, interceptions included.
template <class Result, ObjC::FixedString name, class... Arguments>
inline Result sendSuper(id object, Class superclass, const Arguments&... arguments)
{
    SEL selector = ObjC::selector<name>();
    return ObjC::callImplementation<Result>(
        class_getMethodImplementation(superclass, selector), object, selector, arguments...);
}

namespace Binding {

/// Splits a member function, or a free function on the stand-in, into result and arguments.
template <class F>
struct Signature;

template <class R, class C, class... A>
struct Signature<R (C::*)(A...)> {
    template <template <class...> class Use>
    using With = Use<R, A...>;
    static constexpr std::size_t arity = sizeof...(A);
};
template <class R, class C, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {
};
template <class R, class... A>
struct Signature<R (*)(A...)> {
    template <template <class...> class Use>
    using With = Use<R, A...>;
    static constexpr std::size_t arity = sizeof...(A);
};

/// An instance method: finds the stand-in behind the object and calls the member.
template <class T, auto member, bool owned>
struct InstanceMethod {
    template <class R, class... A>
    struct Call {
        static ObjC::WireType<R> call(id object, SEL, ObjC::WireType<A>... arguments)
        {
            T& target = standIn<T>(object);
            if constexpr (std::is_void_v<R>)
                (target.*member)(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...);
            else
                return ObjC::returned<std::remove_cvref_t<R>, owned>(
                    (target.*member)(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...));
        }
        static const char* types() { return ObjC::methodEncoding<R, A...>.text.data(); }
    };
};

/// An initializer: runs the member and returns the object; a member that answers false makes it nil, and one that
/// answers an object hands that out in its place.
template <class T, auto member>
struct Initializer {
    template <class R, class... A>
    struct Call {
        static id call(id object, SEL, ObjC::WireType<A>... arguments)
        {
            T& target = standIn<T>(object);
            if constexpr (std::is_base_of_v<ObjC::Object, R>) {
                const R other = (target.*member)(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...);
                const id result = ObjC::retain(other.raw());
                ObjC::release(object);
                return result;
            } else if constexpr (std::is_same_v<R, bool>) {
                if (!(target.*member)(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...)) {
                    ObjC::release(object);
                    return nullptr;
                }
            } else
                (target.*member)(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...);
            return object;
        }
        static const char* types() { return ObjC::methodEncoding<id, A...>.text.data(); }
    };
};

/// A class method: a free or static function of the arguments alone.
template <auto function, bool owned>
struct ClassMethod {
    template <class R, class... A>
    struct Call {
        static ObjC::WireType<R> call(id, SEL, ObjC::WireType<A>... arguments)
        {
            if constexpr (std::is_void_v<R>)
                function(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...);
            else
                return ObjC::returned<std::remove_cvref_t<R>, owned>(
                    function(ObjC::fromWire<std::remove_cvref_t<A>>(arguments)...));
        }
        static const char* types() { return ObjC::methodEncoding<R, A...>.text.data(); }
    };
};

template <class M>
struct MemberType;
template <class V, class C>
struct MemberType<V C::*> {
    using Value = V;
};

/// Getter and setter of a data member, with an optional member function that runs after a change.
template <class T, auto member, auto changed>
struct Accessors {
    using Value = typename MemberType<decltype(member)>::Value;

    static ObjC::WireType<Value> get(id object, SEL)
    {
        return ObjC::returned<Value, false>(standIn<T>(object).*member);
    }
    static void set(id object, SEL, ObjC::WireType<Value> value)
    {
        T& target = standIn<T>(object);
        target.*member = ObjC::fromWire<Value>(value);
        if constexpr (!std::is_null_pointer_v<decltype(changed)>)
            (target.*changed)();
    }
};

}

template <class T>
class Binder {
public:
    Binder(const char* name, const char* superclass)
        : m_name(name)
        , m_class(StandInRegistry::shared().open(
              name, superclass, std::is_same_v<T, typename T::Root>, [] { return std::unique_ptr<StandIn>(new T); }))
    {
    }

    /// An instance method implemented by a member function.
    template <ObjC::FixedString name, auto member>
    Binder& def()
    {
        static_assert(!ObjC::isInitializer(name.view()), "bind initializers with .init");
        return add<name, Binding::InstanceMethod<T, member, ObjC::returnsOwned(name.view())>, member>();
    }

    template <ObjC::FixedString name, auto member>
    Binder& init()
    {
        static_assert(ObjC::isInitializer(name.view()), "an initializer's selector begins with init");
        return add<name, Binding::Initializer<T, member>, member>();
    }

    template <ObjC::FixedString name, auto function>
    Binder& classMethod()
    {
        return add<name, Binding::ClassMethod<function, ObjC::returnsOwned(name.view())>, function>("+");
    }

    /// A getter and a setter of a data member; `changed` runs after each set.
    template <ObjC::FixedString getter, ObjC::FixedString setter, auto member, auto changed = nullptr>
    Binder& property()
    {
        using Both = Binding::Accessors<T, member, changed>;
        using Value = typename Both::Value;
        static_assert(ObjC::argumentCount(setter.view()) == 1, "a setter takes one argument");
        add(getter.text, reinterpret_cast<IMP>(&Both::get), ObjC::methodEncoding<Value>.text.data());
        return add(setter.text, reinterpret_cast<IMP>(&Both::set), ObjC::methodEncoding<void, Value>.text.data());
    }

    /// A getter alone.
    template <ObjC::FixedString getter, auto member>
    Binder& readonly()
    {
        using Both = Binding::Accessors<T, member, nullptr>;
        return add(
            getter.text, reinterpret_cast<IMP>(&Both::get), ObjC::methodEncoding<typename Both::Value>.text.data());
    }

    /// A real instance variable, reachable by name as on the phone. Objects in it are released with their owner.
    template <ObjC::FixedString name, class V = id>
    Binder& ivar()
    {
        if (!System::current().hasOwn(m_name, name.text))
            return *this;
        constexpr unsigned char alignment = sizeof(V) == 8 ? 3 : sizeof(V) == 4 ? 2 : sizeof(V) == 2 ? 1 : 0;
        class_addIvar(m_class, name.text, sizeof(V), alignment, ObjC::encodingOf<V>().data());
        if constexpr (std::is_same_v<V, id>)
            StandInRegistry::shared().declareOwnedIvar(m_class, name.text);
        return *this;
    }

    Class add()
    {
        StandInRegistry::shared().close(m_class);
        return m_class;
    }

private:
    template <ObjC::FixedString name, class Kind, auto function>
    Binder& add(const char* sign = "-")
    {
        using Shape = Binding::Signature<decltype(function)>;
        static_assert(Shape::arity == ObjC::argumentCount(name.view()),
            "a selector takes one argument for each colon in its name");
        using Call = typename Shape::template With<Kind::template Call>;
        return add(name.text, reinterpret_cast<IMP>(&Call::call), Call::types(), sign);
    }

    Binder& add(const char* selector, IMP implementation, const char* types, const char* sign = "-")
    {
        Class target = *sign == '+' ? object_getClass(reinterpret_cast<id>(m_class)) : m_class;
        if (System::current().hasOwn(m_name, std::string(sign) + selector))
            class_addMethod(target, sel_registerName(selector), implementation, types);
        return *this;
    }

    const char* m_name;
    Class m_class;
};

/// Puts a plain function in the place of one class's method and answers what stood there.
template <auto function, bool owned = false>
inline IMP replaceMethod(const char* className, const char* selectorName)
{
    using Method = ObjC::Adapter<function, owned>;
    Class type = objc_getClass(className);
    SEL selector = sel_registerName(selectorName);
    IMP previous = class_getMethodImplementation(type, selector);
    setMethod(type, selector, Method::implementation(), Method::types());
    return previous;
}

}
