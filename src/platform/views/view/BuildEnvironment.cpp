#include "platform/views/view/BuildEnvironment.hpp"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace views {

namespace {

thread_local const foundation::Environment* current = nullptr;

}  // namespace

const foundation::Environment& buildEnvironment() {
    if (!current) {
        std::fputs("nurva: a view was built outside a build scope\n", stderr);
        std::abort();
    }
    return *current;
}

BuildScope::BuildScope(const foundation::Environment& environment)
    : outer_(std::exchange(current, &environment)) {}

BuildScope::~BuildScope() {
    current = outer_;
}

}  // namespace views
