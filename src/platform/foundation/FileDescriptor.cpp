#include "platform/foundation/FileDescriptor.hpp"

#include <unistd.h>

namespace foundation {

FileDescriptor::~FileDescriptor() {
    if (number_ >= 0)
        ::close(number_);
}

}  // namespace foundation
