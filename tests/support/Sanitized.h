// SPDX-License-Identifier: Apache-2.0
// Whether this build looks for wrong accesses to memory: everything takes several times longer
// then.
#pragma once

namespace hlxtest {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
#elif defined(__has_feature)
inline constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
inline constexpr bool kSanitized = false;
#endif

}  // namespace hlxtest
