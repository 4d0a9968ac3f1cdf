// Threads that do nothing but use the processor.
#pragma once

#include <atomic>
#include <thread>
#include <vector>

namespace corvana::misura {

class CicliOccupati {
public:
    explicit CicliOccupati(int quanti) {
        for (int i = 0; i < quanti; ++i)
            fili_.emplace_back([this] {
                while (!fine_.load(std::memory_order_relaxed)) {}
            });
    }
    CicliOccupati(const CicliOccupati&) = delete;
    CicliOccupati& operator=(const CicliOccupati&) = delete;
    ~CicliOccupati() {
        fine_ = true;
        for (std::thread& filo : fili_)
            filo.join();
    }

private:
    std::atomic<bool> fine_{false};
    std::vector<std::thread> fili_;
};

}  // namespace corvana::misura
