// How exact `Sleep` is: for those who count on it without ever waiting. Any thread.
#pragma once

namespace corvana {

/// What a `Sleep` lasts beyond its milliseconds: the granularity that playback counts on.
constexpr int granularitaSleep = 2;

}  // namespace corvana
