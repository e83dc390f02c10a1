// The phone's life. What it knows and a restart forgets is a part of it: made when first asked for, gone with the
// phone.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

namespace Simulator {

/// One at a time in a process. What the Objective-C runtime and the loader keep, such as classes, is the process's and
/// outlives it.
class Phone {
public:
    /// What each phone does when it starts; the row stands beside the code that it concerns.
    class AtStart {
    public:
        using Action = void (*)(Phone&);

        explicit AtStart(Action action)
            : m_action(action)
            , m_next(std::exchange(m_last, this))
        {
        }

    private:
        friend class Phone;
        static constinit inline const AtStart* m_last = nullptr;

        const Action m_action;
        const AtStart* const m_next;
    };

    Phone()
    {
        if (std::exchange(m_exists, true))
            fail("a phone is there already");
    }
    /// The part that was made last goes first.
    ~Phone()
    {
        const auto scope = m_makeScope ? m_makeScope() : nullptr;
        while (!m_ends.empty()) {
            const End end = m_ends.back();
            m_ends.pop_back();
            end();
        }
        m_exists = false;
    }
    Phone(const Phone&) = delete;
    Phone& operator=(const Phone&) = delete;

    /// Registers the classes and connects the libraries that are linked into the program. What the device has installed
    /// is to be known by then.
    void start()
    {
        for (const AtStart* row = AtStart::m_last; row; row = row->m_next)
            row->m_action(*this);
    }

    /// What is made before the parts go and goes after them: the last autorelease pool.
    using MakeScope = std::shared_ptr<void> (*)();
    void setScope(MakeScope makeScope) { m_makeScope = makeScope; }

    /// The phone's one object of the type.
    template <class Part>
    static Part& part()
    {
        if (!m_part<Part>)
            make<Part>();
        return *m_part<Part>;
    }
    /// Null until the part is asked for, and when the phone is gone.
    template <class Part>
    static Part* partIfMade()
    {
        return m_part<Part>;
    }

private:
    using End = void (*)();

    [[noreturn]] static void fail(const char* problem)
    {
        std::fprintf(stderr, "lyr: %s\n", problem);
        std::abort();
    }

    template <class Part>
    [[gnu::noinline]] static void make()
    {
        if (!m_exists)
            fail("there is no phone to keep a state");
        m_part<Part> = new Part;
        m_ends.push_back([] { delete std::exchange(m_part<Part>, nullptr); });
    }

    MakeScope m_makeScope = nullptr;

    template <class Part>
    static constinit inline Part* m_part = nullptr;
    static constinit inline bool m_exists = false;
    static inline std::vector<End> m_ends;
};

}
