#pragma once

#include <memory>

#include "live/live_decoder.h"
#include "live_sources/live_source.h"

namespace zelvor {

struct LiveOptions;

// The source that --source names, at that speed where it is a recording, and who reads it; nothing when `fault` says
// why not.
struct ChosenSource {
    std::unique_ptr<LiveSource> source;
    std::unique_ptr<LiveDecoder> decoder;
};
ChosenSource chooseSource(const LiveOptions& options, double speed, Refusals& refusals, QString& fault);

}  // namespace zelvor
