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
            : action_(action)
            , next_(std::exchange(last_, this))
        {
        }

    private:
        friend class Phone;
        static constinit inline const AtStart* last_ = nullptr;

        const Action action_;
        const AtStart* const next_;
    };

    Phone()
    {
        if (std::exchange(exists_, true))
            fail("a phone is there already");
    }
    /// The part that was made last goes first.
    ~Phone()
    {
        const auto scope = makeScope_ ? makeScope_() : nullptr;
        while (!ends_.empty()) {
            const End end = ends_.back();
            ends_.pop_back();
            end();
        }
        exists_ = false;
    }
    Phone(const Phone&) = delete;
    Phone& operator=(const Phone&) = delete;

    /// Registers the classes and connects the libraries that are linked into the program. What the device has installed
    /// is to be known by then.
    void start()
    {
        for (const AtStart* row = AtStart::last_; row; row = row->next_)
            row->action_(*this);
    }

    /// What is made before the parts go and goes after them: the last autorelease pool.
    using MakeScope = std::shared_ptr<void> (*)();
    void setScope(MakeScope makeScope) { makeScope_ = makeScope; }

    /// The phone's one object of the type.
    template <class Part>
    static Part& part()
    {
        if (!part_<Part>)
            make<Part>();
        return *part_<Part>;
    }
    /// Null until the part is asked for, and when the phone is gone.
    template <class Part>
    static Part* partIfMade()
    {
        return part_<Part>;
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
        if (!exists_)
            fail("there is no phone to keep a state");
        part_<Part> = new Part;
        ends_.push_back([] { delete std::exchange(part_<Part>, nullptr); });
    }

    MakeScope makeScope_ = nullptr;

    template <class Part>
    static constinit inline Part* part_ = nullptr;
    static constinit inline bool exists_ = false;
    static inline std::vector<End> ends_;
};

}
