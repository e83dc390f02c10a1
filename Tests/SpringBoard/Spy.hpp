// Listens to messages of the shell as an extension would: by taking a method's place.
#pragma once

#include "Platform/ObjC/Selector.hpp"
#include "Simulator/Runtime/MethodTable.hpp"

#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Simulator {

/// Notes "Class selector" of each message and goes on with the stock method. For methods whose arguments and result
/// are whole numbers or objects. One at a time.
class Spy {
public:
    Spy() { current() = this; }
    ~Spy()
    {
        for (const Place& place : m_places)
            setMethod(place.type, place.selector, place.stock, place.types);
        current() = nullptr;
    }
    Spy(const Spy&) = delete;
    Spy& operator=(const Spy&) = delete;

    void listenTo(const char* className, const char* selectorName)
    {
        Class type = objc_getClass(className);
        SEL selector = sel_registerName(selectorName);
        const Method method = class_getInstanceMethod(type, selector);
        if (!method || m_places.size() == most)
            throw std::invalid_argument(std::string("cannot listen to ") + className + " " + selectorName);
        const char* types = method_getTypeEncoding(method);
        m_places.push_back({type, selector, class_getMethodImplementation(type, selector), types});
        setMethod(type, selector, notes(std::make_index_sequence<most>())[m_places.size() - 1], types);
    }
    std::vector<std::string> take() { return std::exchange(m_messages, {}); }

private:
    static constexpr std::size_t most = 24;

    struct Place {
        Class type;
        SEL selector;
        IMP stock;
        const char* types;
    };

    static Spy*& current()
    {
        static Spy* spy = nullptr;
        return spy;
    }

    /// A function for each place, so that each knows which method it stands for.
    template <std::size_t index>
    static void* note(id object, SEL selector, void* first, void* second, void* third)
    {
        const Place place = current()->m_places[index];
        current()->m_messages.push_back(std::string(class_getName(place.type)) + " " + sel_getName(place.selector));
        return reinterpret_cast<void* (*)(id, SEL, void*, void*, void*)>(place.stock)(
            object, selector, first, second, third);
    }
    template <std::size_t... indices>
    static std::array<IMP, sizeof...(indices)> notes(std::index_sequence<indices...>)
    {
        return {reinterpret_cast<IMP>(&note<indices>)...};
    }

    std::vector<Place> m_places;
    std::vector<std::string> m_messages;
};

}
