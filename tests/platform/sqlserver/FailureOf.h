#pragma once

#include "platform/ado/Error.h"

#include <cstdint>
#include <functional>

// The HRESULT of the ado::Error the body throws; 0 when it throws none.
inline std::int32_t failureOf(const std::function<void()>& body) {
    try {
        body();
    } catch (const ado::Error& e) {
        return e.hresult();
    }
    return 0;
}
