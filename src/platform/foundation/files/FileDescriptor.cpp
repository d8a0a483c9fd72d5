#include "platform/foundation/files/FileDescriptor.hpp"

#include <unistd.h>

namespace foundation {

FileDescriptor::~FileDescriptor() {
    if (number_ >= 0)
        ::close(number_);
}

}  // namespace foundation
