#pragma once

#include <cstdint>
#include <string>

#include "win/HostEnvironment.h"

namespace qutav {

/// The body of TestMovie. Its first two arguments stand in the opposite order from all other
/// functions: movie, document.
std::int32_t RunTestMovie(const HostCallContext& call, const HostValue* arguments);

/// Starts the debug launcher directly, without the host. Arguments as of TestMovie.
std::int32_t RunPlainLaunch(const HostCallContext& call, const HostValue* arguments);

/// The script by which the host shows a program's output, as one text of the script language:
/// without carriage returns, and with apostrophes for its quotes.
std::u16string TraceScript(const std::u16string& output);

/// Exports the movie through the host for a test run; the evaluation's status.
std::int32_t ExportMovieForTest(const HostCallContext& call, const std::u16string& movieUri,
                                HostValue& result);

}  // namespace qutav
