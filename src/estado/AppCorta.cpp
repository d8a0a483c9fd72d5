#include "estado/AppCorta.hpp"

#include "platform/foundation/json/RecordEquality.hpp"

namespace nurva {

bool operator==(const AppCorta& a, const AppCorta& b) {
    return foundation::recordsEqual(a, b);
}

}  // namespace nurva
