// SPDX-License-Identifier: MIT
#include "base/errors.h"

#include <new>

namespace vell {

RunTimeError currentError() {
    try {
        throw;
    } catch (const RunTimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {error_number::OutOfMemory, "Out of memory"};
    } catch (const std::exception& error) {
        return {error_number::InvalidCall, error.what()};
    } catch (...) {
        return {error_number::InvalidCall, "Unknown error"};
    }
}

}  // namespace vell
