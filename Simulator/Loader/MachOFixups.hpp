// The little programs in a library's link data that say which pointers to adjust and which to bind.
#pragma once

#include "Simulator/Loader/ByteReader.hpp"
#include "Simulator/Loader/MachOFile.hpp"

namespace Simulator {

/// The segments are numbered as the file lists them. Throws a LoadError.
std::vector<std::uint64_t> readRebases(ByteReader, const std::vector<MachOFile::Segment>&);
/// A table of lazy binds has an end mark after each of them; every other table ends at the first.
std::vector<MachOFile::Bind> readBinds(ByteReader, const std::vector<MachOFile::Segment>&, bool isLazy);

}
