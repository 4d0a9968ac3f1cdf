// What is still done when somebody ends the process by std::exit while the program runs, as Qt does
// when the screen's server has gone. One at a time; the thread that constructs it destroys it.
#pragma once

#include <functional>

namespace corvana {

class FineImprovvisa {
public:
    /// `rimedio` is called by std::exit, on the thread that called that. It may end the process.
    explicit FineImprovvisa(std::function<void()> rimedio);
    FineImprovvisa(const FineImprovvisa&) = delete;
    FineImprovvisa& operator=(const FineImprovvisa&) = delete;
    ~FineImprovvisa();

private:
    std::function<void()> rimedio_;
};

}  // namespace corvana
