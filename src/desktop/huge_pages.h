// Memory for large arrays that are accessed at scattered places.
#pragma once

#include <memory_resource>

namespace starfolds {

/// Memory in pages of 2 MiB for blocks of at least that size, where the system has such pages. A
/// canvas in ordinary pages spans thousands of them, and nearly every star needs another one whose
/// address the processor must look up first.
std::pmr::memory_resource* HugePages();

}  // namespace starfolds
