// Blocks, the platform's callbacks, built by hand from their public layout: any compiler will do.
#pragma once

#include "Platform/ObjC/Encoding.hpp"
#include "Platform/ObjC/Object.hpp"

#include <concepts>

extern "C" {
/// The class of a block that lives in its maker's frame; whoever keeps such a block copies it.
extern void* _NSConcreteStackBlock[];
}

namespace ObjC {

/// A block of somebody else's, to be handed on as it came.
struct BlockArgument {
    const void* block;
};
template <>
inline constexpr std::string_view structureEncoding<BlockArgument> = "@?";

/// What stands before the values that a block carries, as every block has it.
struct BlockDescriptor {
    unsigned long reserved;
    unsigned long size;
};
struct BlockHeader {
    void* isa;
    int flags;
    int reserved;
    void (*invoke)();
    const BlockDescriptor* descriptor;
};

/// A function, alone or with a context, as the block that a message takes. It is good for the message alone: the
/// platform copies what it keeps, and the context has to live until the platform has called it.
template <class Signature>
class Block;

template <class... Arguments>
class Block<void(Arguments...)> {
public:
    /// No block at all.
    constexpr Block(std::nullptr_t = nullptr) { }

    template <std::convertible_to<void (*)(Arguments...)> Function>
    requires(!std::same_as<Function, std::nullptr_t>) Block(Function function)
        : m_literal{{_NSConcreteStackBlock, 0, 0, reinterpret_cast<void (*)()>(&callPlain), &descriptor}, nullptr,
            reinterpret_cast<void (*)()>(static_cast<void (*)(Arguments...)>(function))}
    {
    }
    Block(void* context, void (*function)(void* context, Arguments...))
        : m_literal{{_NSConcreteStackBlock, 0, 0, reinterpret_cast<void (*)()>(&callWithContext), &descriptor}, context,
            reinterpret_cast<void (*)()>(function)}
    {
    }

    /// The block as an argument of a message; null for none.
    void* raw() const { return m_literal.function ? const_cast<Literal*>(&m_literal) : nullptr; }

private:
    struct Literal {
        BlockHeader header{};
        void* context = nullptr;
        void (*function)() = nullptr;
    };
    static constexpr BlockDescriptor descriptor{0, sizeof(Literal)};

    static void callPlain(const Literal* block, WireType<Arguments>... arguments)
    {
        reinterpret_cast<void (*)(Arguments...)>(block->function)(fromWire<Arguments>(arguments)...);
    }
    static void callWithContext(const Literal* block, WireType<Arguments>... arguments)
    {
        reinterpret_cast<void (*)(void*, Arguments...)>(block->function)(
            block->context, fromWire<Arguments>(arguments)...);
    }

    Literal m_literal;
};

}
