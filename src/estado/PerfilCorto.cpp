#include "estado/PerfilCorto.hpp"

#include "platform/foundation/json/RecordEquality.hpp"

namespace nurva {

bool operator==(const PerfilCorto& a, const PerfilCorto& b) {
    return foundation::recordsEqual(a, b);
}

}  // namespace nurva
