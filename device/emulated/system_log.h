// SPDX-License-Identifier: MIT
//
// The phone's system log: its lines go where the desktop's debug log goes.
#pragma once

#include <cstdint>
#include <span>

namespace device::emulated {

// The image that may log, and whose texts the formats are.
void setLoggingImage(std::span<const std::uint8_t> image);

extern "C" {
extern char phone_os_log_default[];
bool phone_os_log_type_enabled(const void* log, std::uint8_t type);
void phone_os_log_impl(const void* library, const void* log, std::uint8_t type, const char* format,
                       const std::uint8_t* arguments, std::uint32_t size);
}

}  // namespace device::emulated
