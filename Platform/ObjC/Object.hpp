// The handle: a value that owns one retain of an object. Every facade is one.
#pragma once

#include "Platform/ObjC/MessageList.hpp"

#include <utility>

namespace ObjC {

template <class T>
class InstanceVariable;

/// Any object, or nil. A message to nil gives a zero result.
class Object {
public:
    constexpr Object() = default;
    constexpr Object(std::nullptr_t) { }
    explicit Object(id object)
        : m_object(ObjC::retain(object))
    {
    }
    Object(const Object& other)
        : m_object(ObjC::retain(other.m_object))
    {
    }
    Object(Object&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    ~Object() { ObjC::release(m_object); }

    Object& operator=(Object other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /// Takes over a retain that the caller owns.
    static Object adopting(id object)
    {
        Object handle;
        handle.m_object = object;
        return handle;
    }

    id raw() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    friend bool operator==(const Object& left, const Object& right) { return left.m_object == right.m_object; }

    /// Gives the retain away to the caller.
    id leak() { return std::exchange(m_object, nullptr); }
    /// The object as a method returns it: alive until the pool drains.
    id autoreleased() const { return ObjC::autorelease(ObjC::retain(m_object)); }

    template <class Result, FixedString name, class... Arguments>
    Result send(const Arguments&... arguments) const
    {
        return sendAs<"?", Result, name>(arguments...);
    }

    bool isKindOf(Class type) const { return type && send<bool, "isKindOfClass:">(type); }
    template <FixedString name>
    bool respondsTo() const
    {
        return send<bool, "respondsToSelector:">(selector<name>());
    }

    /// Whether the object is of the facade's class or of a class derived from it.
    template <class T>
    bool is() const
    {
        return m_object && isKindOf(T::type());
    }

    /// The object as a facade of its class; nil if it is of another class.
    template <class T>
    T as() const
    {
        return is<T>() ? T(m_object) : T();
    }

    /// The instance variable of that name, wherever the class keeps it.
    template <class T>
    InstanceVariable<T> variable(const char* name) const;

    /// The object in the instance variable of that name; nil if the class has none, or something else in it.
    template <Handle T>
    T ivar(const char* name) const;

    static Class type() { return objc_getClass("NSObject"); }

protected:
    /// A message to an object that is known as one of the class.
    template <FixedString className, class Result, FixedString name, class... Arguments>
    Result sendAs(const Arguments&... arguments) const
    {
        static_assert(!isInitializer(name.view()), "initializers consume their receiver: use make<\"init…\">");
        listMessage<'-', className, Result, name, Arguments...>();
        return sendMessage<Result, returnsOwned(name.view())>(m_object, selector<name>(), arguments...);
    }

private:
    id m_object = nullptr;
};

/// The storage of one instance variable, found by name; empty if the object is nil or has none of that name.
template <class T>
class InstanceVariable {
public:
    InstanceVariable(id object, const char* name)
    {
        Ivar found = object ? class_getInstanceVariable(object_getClass(object), name) : nullptr;
        if (found)
            m_storage = reinterpret_cast<T*>(reinterpret_cast<char*>(object) + ivar_getOffset(found));
    }
    explicit operator bool() const { return m_storage != nullptr; }
    T get() const { return m_storage ? *m_storage : T(); }
    void set(T value) const
    {
        if (m_storage)
            *m_storage = value;
    }

private:
    T* m_storage = nullptr;
};

/// The object in an instance variable that owns what it holds.
template <Handle T>
T ownedVariable(id object, const char* name)
{
    return T(InstanceVariable<id>(object, name).get());
}

inline void setOwnedVariable(id object, const char* name, const Object& value)
{
    InstanceVariable<id> variable(object, name);
    id previous = variable.get();
    variable.set(ObjC::retain(value.raw()));
    ObjC::release(previous);
}

template <class T>
InstanceVariable<T> Object::variable(const char* name) const
{
    return {m_object, name};
}

template <Handle T>
T Object::ivar(const char* name) const
{
    Ivar found = m_object ? class_getInstanceVariable(object_getClass(m_object), name) : nullptr;
    const char* encoding = found ? ivar_getTypeEncoding(found) : nullptr;
    return encoding && encoding[0] == '@' ? T(variable<id>(name).get()) : T();
}

/// Base of every facade: the class by name, messages to its objects and to the class itself.
template <class Self, class Super, FixedString className>
class Class_ : public Super {
public:
    using Super::Super;
    constexpr Class_() = default;

    static Self adopting(id object)
    {
        Self handle;
        static_cast<Object&>(handle) = Object::adopting(object);
        return handle;
    }

    /// The class, looked up when first needed; nil where the system has none of that name.
    static Class type()
    {
        if (!kept)
            kept = objc_getClass(className.text);
        return kept;
    }
    /// What `type` answers; nil before it was asked for. A class of ours is put here by its builder.
    static inline constinit Class kept = nullptr;
    static constexpr auto nameOfClass = className;
    /// What a class of ours is called where a stranger has the name.
    static constexpr auto otherNameOfClass = joined(className, FixedString("_LYR"));

    template <class Result, FixedString name, class... Arguments>
    Result send(const Arguments&... arguments) const
    {
        return Object::template sendAs<className, Result, name>(arguments...);
    }

    template <class Result, FixedString name, class... Arguments>
    static Result sendClass(const Arguments&... arguments)
    {
        listMessage<'+', className, Result, name, Arguments...>();
        return sendMessage<Result, returnsOwned(name.view())>(
            reinterpret_cast<id>(type()), selector<name>(), arguments...);
    }

    /// A new object by the named initializer.
    template <FixedString name = "init", class... Arguments>
    static Self make(const Arguments&... arguments)
    {
        static_assert(isInitializer(name.view()), "make takes an initializer");
        listMessage<'-', className, id, name, Arguments...>();
        id allocated = sendMessage<id>(reinterpret_cast<id>(type()), selector<"alloc">());
        return adopting(sendMessage<id>(allocated, selector<name>(), arguments...));
    }
};

/// Base of the facades of classes that no documentation promises. A message that the object or the class does not
/// answer does nothing and gives zero: on a system that differs, what needs it is missing, and the shell goes on.
template <class Self, class Super, FixedString className>
class PrivateClass_ : public Class_<Self, Super, className> {
    using Public = Class_<Self, Super, className>;

public:
    using Public::Public;
    constexpr PrivateClass_() = default;

    template <class Result, FixedString name, class... Arguments>
    Result send(const Arguments&... arguments) const
    {
        if (!this->template respondsTo<name>())
            return Result();
        return Public::template send<Result, name>(arguments...);
    }

    /// The object in the instance variable of that name; nil if the class has none, or something else in it.
    template <Handle T, FixedString name>
    T ivar() const
    {
        listVariable<className, name>();
        return Object::ivar<T>(name.text);
    }

    template <class Result, FixedString name, class... Arguments>
    static Result sendClass(const Arguments&... arguments)
    {
        if (!sendMessage<bool>(
                reinterpret_cast<id>(Public::type()), selector<"respondsToSelector:">(), selector<name>()))
            return Result();
        return Public::template sendClass<Result, name>(arguments...);
    }

    template <FixedString name = "init", class... Arguments>
    static Self make(const Arguments&... arguments)
    {
        Class type = Public::type();
        if (!type || !class_getInstanceMethod(type, selector<name>()))
            return Self();
        return Public::template make<name>(arguments...);
    }
};

/// A process-wide reference: it owns what it holds, starts as nil, and is never destroyed at exit.
template <class T>
class Variable {
public:
    constexpr Variable() = default;
    Variable(const Variable&) = delete;

    Variable& operator=(const T& value)
    {
        id previous = std::exchange(m_object, ObjC::retain(value.raw()));
        ObjC::release(previous);
        return *this;
    }

    T get() const { return T(m_object); }
    operator T() const { return T(m_object); }
    explicit operator bool() const { return m_object != nullptr; }
    id raw() const { return m_object; }
    constexpr id* address() { return &m_object; }
    constexpr const id* address() const { return &m_object; }

    /// What it holds as a handle in place, without a retain of its own.
    const T& reference() const
    {
        static_assert(sizeof(T) == sizeof(id), "a facade adds no state to the handle");
        return reinterpret_cast<const T&>(m_object);
    }
    const T* operator->() const { return &reference(); }

private:
    id m_object = nullptr;
};

/// A variable that knows its name.
template <class T, FixedString variableName>
class NamedVariable : public Variable<T> {
public:
    static constexpr const char* name = variableName.text;
    using Variable<T>::operator=;
};

}
