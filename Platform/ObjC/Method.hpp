// Plain C++ functions as method implementations, and new classes made of them.
#pragma once

#include "Platform/ObjC/Encoding.hpp"
#include "Platform/ObjC/Object.hpp"

namespace ObjC {

/// A value as a method hands it back: an object autoreleased, or owned by the caller.
template <class T, bool owned>
inline WireType<T> returned(T value)
{
    if constexpr (Handle<T>)
        return owned ? value.leak() : value.autoreleased();
    else
        return toWire(value);
}

/// Adapts `Result function(Self, SEL, Arguments…)` to the calling convention of a method. `owned` follows the
/// selector: the result of an initializer and the like belongs to the caller.
template <auto function, bool owned = false>
struct Adapter;

template <class Result, class Self, class... Arguments, Result (*function)(Self, SEL, Arguments...), bool owned>
struct Adapter<function, owned> {
    static constexpr std::size_t arity = sizeof...(Arguments);
    using ResultType = Result;

    static WireType<Result> call(id self, SEL command, WireType<Arguments>... arguments)
    {
        if constexpr (std::is_void_v<Result>)
            function(std::remove_cvref_t<Self>(self), command, fromWire<std::remove_cvref_t<Arguments>>(arguments)...);
        else
            return returned<Result, owned>(function(
                std::remove_cvref_t<Self>(self), command, fromWire<std::remove_cvref_t<Arguments>>(arguments)...));
    }
    static IMP implementation() { return reinterpret_cast<IMP>(&call); }
    static constexpr const EncodingText& encoding = methodEncoding<Result, Arguments...>;
    static const char* types() { return encoding.text.data(); }
};

/// What a class of ours inherits for a message, to be called from its own method.
template <class Superclass>
inline IMP inheritedImplementation(SEL command)
{
    return Superclass::template sendClass<IMP, "instanceMethodForSelector:">(command);
}

/// Makes a new class. Its methods are plain functions; `build` registers it with the runtime.
class ClassBuilder {
public:
    ClassBuilder(const char* name, Class superclass)
        : m_class(superclass ? objc_allocateClassPair(superclass, name, 0) : nullptr)
    {
    }

    /// The class of a facade, which stands for it once it is built. A name that a stranger's class has is not ours to
    /// use: ours gets a longer one then. Where the class has been built already, nothing is done.
    template <class Facade>
    static ClassBuilder of(Class superclass)
    {
        if (Facade::kept)
            return {"", nullptr};
        listClass<Facade::nameOfClass>();
        ClassBuilder builder(Facade::nameOfClass.text, superclass);
        if (!builder.m_class)
            builder = ClassBuilder(Facade::otherNameOfClass.data(), superclass);
        builder.m_kept = &Facade::kept;
        return builder;
    }

    template <class T>
    ClassBuilder& ivar(const char* name)
    {
        constexpr std::uint8_t alignment = alignof(T) == 8 ? 3 : alignof(T) == 4 ? 2 : alignof(T) == 2 ? 1 : 0;
        if (m_class)
            class_addIvar(m_class, name, sizeof(T), alignment, encodingOf<T>().data());
        return *this;
    }

    template <FixedString name, auto function>
    ClassBuilder& method()
    {
        return add<name, function>(m_class);
    }

    template <FixedString name, auto function>
    ClassBuilder& classMethod()
    {
        return add<name, function>(m_class ? object_getClass(reinterpret_cast<id>(m_class)) : nullptr);
    }

    /// The registered class; nil if the name was taken or the superclass is missing.
    Class build()
    {
        if (!m_class)
            return nullptr;
        objc_registerClassPair(m_class);
        if (m_kept)
            *m_kept = m_class;
        return m_class;
    }

private:
    template <FixedString name, auto function>
    ClassBuilder& add(Class target)
    {
        using Method = Adapter<function, returnsOwned(name.view())>;
        static_assert(
            Method::arity == argumentCount(name.view()), "a selector takes one argument for each colon in its name");
        if (target)
            class_addMethod(target, selector<name>(), Method::implementation(), Method::types());
        return *this;
    }

    Class m_class;
    Class* m_kept = nullptr;
};

}
