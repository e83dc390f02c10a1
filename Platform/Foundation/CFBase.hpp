// Core Foundation: ownership of its objects, and errors.
#pragma once

#include "Platform/Foundation/NSString.hpp"

#include <utility>

extern "C" {
void CFRelease(const void*);
/// The caller owns the text.
id CFErrorCopyDescription(id error);
}

namespace CF {

/// Owns one retain of a Core Foundation object; each type says how it is released.
template <class Reference, void (*releaseFunction)(Reference)>
class Owned {
public:
    explicit Owned(Reference reference = nullptr)
        : m_reference(reference)
    {
    }
    Owned(Owned&& other) noexcept
        : m_reference(std::exchange(other.m_reference, nullptr))
    {
    }
    Owned& operator=(Owned&& other) noexcept
    {
        std::swap(m_reference, other.m_reference);
        return *this;
    }
    ~Owned()
    {
        if (m_reference)
            releaseFunction(m_reference);
    }
    explicit operator bool() const { return m_reference != nullptr; }
    Reference get() const { return m_reference; }

private:
    Reference m_reference;
};

}
