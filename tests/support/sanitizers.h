/// \file
/// Which sanitizer the tests are built with.
#pragma once

#if defined(__SANITIZE_THREAD__)
#define KELP_TEST_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define KELP_TEST_THREAD_SANITIZER 1
#endif
#endif
#ifndef KELP_TEST_THREAD_SANITIZER
#define KELP_TEST_THREAD_SANITIZER 0
#endif

#if defined(__SANITIZE_ADDRESS__)
#define KELP_TEST_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KELP_TEST_ADDRESS_SANITIZER 1
#endif
#endif
#ifndef KELP_TEST_ADDRESS_SANITIZER
#define KELP_TEST_ADDRESS_SANITIZER 0
#endif
