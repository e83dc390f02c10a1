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
        : reference_(reference)
    {
    }
    Owned(Owned&& other) noexcept
        : reference_(std::exchange(other.reference_, nullptr))
    {
    }
    Owned& operator=(Owned&& other) noexcept
    {
        std::swap(reference_, other.reference_);
        return *this;
    }
    ~Owned()
    {
        if (reference_)
            releaseFunction(reference_);
    }
    explicit operator bool() const { return reference_ != nullptr; }
    Reference get() const { return reference_; }

private:
    Reference reference_;
};

}
