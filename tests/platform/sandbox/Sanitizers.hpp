#pragma once

#ifndef __has_feature
#define __has_feature(feature) 0
#endif

/// Whether the tests run under a sanitizer that keeps a shadow of all memory, which counts as
/// memory of the process.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || \
    __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr bool shadowsMemory = true;
#else
constexpr bool shadowsMemory = false;
#endif
