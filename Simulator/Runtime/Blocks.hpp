// Blocks that were handed over in a message, kept until they are called.
#pragma once

#include "Platform/ObjC/Block.hpp"

#include <cstddef>
#include <memory>
#include <vector>

namespace Simulator {

template <class Signature>
class KeptBlock;

/// A copy of a block, as whoever keeps one makes it. What callers hand over carries plain values only, so that the
/// bytes are all there is to copy. It may be copied itself and be called at any time; without a block nothing happens.
template <class... Arguments>
class KeptBlock<void(Arguments...)> {
public:
    explicit KeptBlock(const void* block)
    {
        if (!block)
            return;
        const auto* bytes = static_cast<const std::byte*>(block);
        const std::size_t size = static_cast<const ObjC::BlockHeader*>(block)->descriptor->size;
        m_copy = std::make_shared<std::vector<std::byte>>(bytes, bytes + size);
    }
    explicit operator bool() const { return m_copy != nullptr; }

    void operator()(Arguments... arguments) const
    {
        if (!m_copy)
            return;
        void* block = m_copy->data();
        reinterpret_cast<void (*)(void*, ObjC::WireType<Arguments>...)>(static_cast<ObjC::BlockHeader*>(block)->invoke)(
            block, ObjC::toWire(arguments)...);
    }

private:
    std::shared_ptr<std::vector<std::byte>> m_copy;
};

}
