// The contents of the files that were read last, so that one which has not changed is read once: the phone keeps its
// files' pages in memory as well.
#pragma once

#include "Simulator/Files/FileContent.hpp"

#include <memory>
#include <vector>

#include <sys/stat.h>

namespace Simulator {

class RecentContents {
public:
    using Content = std::shared_ptr<const FileContent>;

    /// What the file held when its status was the same; null if that is not known.
    Content find(const struct stat& status);
    /// Whether the file may be kept: it is of usual size, and not so new that another change might not show.
    static bool suits(const struct stat& status);
    /// Keeps the content of a file that suits. What goes for it is read to its end if someone still has it.
    void add(const struct stat& status, const Content& content);
    /// Reads all that was not read yet, before a file is changed in its place.
    void readAll() const;

private:
    struct Entry {
        struct stat status;
        Content content;
    };
    /// The one used last comes last.
    std::vector<Entry> m_entries;
};

}
