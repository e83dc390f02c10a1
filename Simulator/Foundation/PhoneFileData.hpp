// The data object of a file: it shares the content with every other reader of the same one.
#pragma once

#include "Simulator/Files/FileContent.hpp"
#include "Simulator/Runtime/StandIn.hpp"

#include <memory>

namespace Simulator {

struct PhoneFileData : StandIn {
    using Root = PhoneFileData;

    const void* bytes() const { return content ? content->bytes().data() : nullptr; }
    unsigned long length() const { return content ? content->size() : 0; }
    ObjC::Object copyWithZone(void*) const { return self(); }

    std::shared_ptr<const FileContent> content;
};

}
