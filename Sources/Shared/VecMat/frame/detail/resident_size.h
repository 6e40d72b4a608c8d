// The memory in use by the process, as reported by its operating system.
#pragma once

namespace vecmat {

/// Resident size of the process in bytes; negative if the operating system does not report it.
double residentSize();

} // namespace vecmat
