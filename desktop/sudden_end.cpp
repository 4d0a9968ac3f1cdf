#include "desktop/sudden_end.h"

#include <atomic>
#include <cstdlib>
#include <utility>

namespace corvana {

namespace {

// What std::exit calls gets nothing from its caller: what is to be done must lie here.
std::atomic<const std::function<void()>*> inVigore{nullptr};

void Rimedia() {
    if (const auto* rimedio = inVigore.exchange(nullptr)) (*rimedio)();
}

}  // namespace

FineImprovvisa::FineImprovvisa(std::function<void()> rimedio) : rimedio_(std::move(rimedio)) {
    static const int iscritta = std::atexit(Rimedia);
    if (iscritta == 0) inVigore = &rimedio_;
}

FineImprovvisa::~FineImprovvisa() {
    inVigore = nullptr;
}

}  // namespace corvana
