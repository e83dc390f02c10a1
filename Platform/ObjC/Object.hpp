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
        : object_(ObjC::retain(object))
    {
    }
    Object(const Object& other)
        : object_(ObjC::retain(other.object_))
    {
    }
    Object(Object&& other) noexcept
        : object_(std::exchange(other.object_, nullptr))
    {
    }
    ~Object() { ObjC::release(object_); }

    Object& operator=(Object other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a retain that the caller owns.
    static Object adopting(id object)
    {
        Object handle;
        handle.object_ = object;
        return handle;
    }

    id raw() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    friend bool operator==(const Object& left, const Object& right) { return left.object_ == right.object_; }

    /// Gives the retain away to the caller.
    id leak() { return std::exchange(object_, nullptr); }
    /// The object as a method returns it: alive until the pool drains.
    id autoreleased() const { return ObjC::autorelease(ObjC::retain(object_)); }

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
        return object_ && isKindOf(T::type());
    }

    /// The object as a facade of its class; nil if it is of another class.
    template <class T>
    T as() const
    {
        return is<T>() ? T(object_) : T();
    }

    /// The instance variable of that name, wherever the class keeps it.
    template <class T>
    InstanceVariable<T> variable(const char* name) const;

    /// The object in the instance variable of that name; nil if the class has no such variable.
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
        return sendMessage<Result, returnsOwned(name.view())>(object_, selector<name>(), arguments...);
    }

private:
    id object_ = nullptr;
};

/// The storage of one instance variable, found by name; empty if the object is nil or has none of that name.
template <class T>
class InstanceVariable {
public:
    InstanceVariable(id object, const char* name)
    {
        Ivar found = object ? class_getInstanceVariable(object_getClass(object), name) : nullptr;
        if (found)
            storage_ = reinterpret_cast<T*>(reinterpret_cast<char*>(object) + ivar_getOffset(found));
    }
    explicit operator bool() const { return storage_ != nullptr; }
    T get() const { return storage_ ? *storage_ : T(); }
    void set(T value) const
    {
        if (storage_)
            *storage_ = value;
    }

private:
    T* storage_ = nullptr;
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
    return {object_, name};
}

template <Handle T>
T Object::ivar(const char* name) const
{
    return T(variable<id>(name).get());
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
        static Class found = nullptr;
        if (!found)
            found = objc_getClass(className.text);
        return found;
    }

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

/// A process-wide reference: it owns what it holds, starts as nil, and is never destroyed at exit.
template <class T>
class Variable {
public:
    constexpr Variable() = default;
    Variable(const Variable&) = delete;

    Variable& operator=(const T& value)
    {
        id previous = std::exchange(object_, ObjC::retain(value.raw()));
        ObjC::release(previous);
        return *this;
    }

    T get() const { return T(object_); }
    operator T() const { return T(object_); }
    explicit operator bool() const { return object_ != nullptr; }
    id raw() const { return object_; }
    constexpr id* address() { return &object_; }
    constexpr const id* address() const { return &object_; }

    /// What it holds as a handle in place, without a retain of its own.
    const T& reference() const
    {
        static_assert(sizeof(T) == sizeof(id), "a facade adds no state to the handle");
        return reinterpret_cast<const T&>(object_);
    }
    const T* operator->() const { return &reference(); }

private:
    id object_ = nullptr;
};

/// A variable that knows its name.
template <class T, FixedString variableName>
class NamedVariable : public Variable<T> {
public:
    static constexpr const char* name = variableName.text;
    using Variable<T>::operator=;
};

}
