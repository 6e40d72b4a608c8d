// How much memory the process holds, as its operating system tells it.
#pragma once

namespace vecmat {

/// Resident size of the process in bytes; negative where the operating system does not tell.
double residentSize();

} // namespace vecmat
