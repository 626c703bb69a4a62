#include "image/quietopencv.h"

#include <opencv2/core/core.hpp>

#if __has_include(<opencv2/core/utils/logger.hpp>)

#include <opencv2/core/utils/logger.hpp>

#include <mutex>

namespace {

/// What all living guards share.
struct LogState
{
    std::mutex mutex;
    int guards = 0;
    cv::utils::logging::LogLevel storedLevel = cv::utils::logging::LOG_LEVEL_WARNING;
};

LogState& logState()
{
    static LogState state;
    return state;
}

} // namespace

QuietOpenCv::QuietOpenCv()
{
    LogState& state = logState();
    const std::lock_guard<std::mutex> lock(state.mutex);
    if (state.guards == 0) {
        state.storedLevel = cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    }
    ++state.guards;
}

QuietOpenCv::~QuietOpenCv()
{
    LogState& state = logState();
    const std::lock_guard<std::mutex> lock(state.mutex);
    --state.guards;
    if (state.guards == 0) {
        cv::utils::logging::setLogLevel(state.storedLevel);
    }
}

#else

QuietOpenCv::QuietOpenCv() = default;
QuietOpenCv::~QuietOpenCv() = default;

#endif
