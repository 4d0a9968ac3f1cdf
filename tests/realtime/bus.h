// A message bus of the test's own, on which a stand-in of RealtimeKit may answer.
#pragma once

#include <cstdint>
#include <future>
#include <thread>

#include "tests/outputs/process.h"

struct sd_bus;

namespace corvana::prova {

/// Takes the place of the system's bus for this process as long as it lives.
class BusPrivato {
public:
    BusPrivato();
    BusPrivato(const BusPrivato&) = delete;
    BusPrivato& operator=(const BusPrivato&) = delete;
    ~BusPrivato();

private:
    CartellaPropria cartella_;
    Processo demone_;
};

/// What the service was asked for, and the limit on computing that the process had by then.
struct RichiestaPuntuale {
    std::uint64_t filo = 0;
    std::uint32_t priorita = 0;
    std::uint64_t limite = 0;  ///< microseconds of computing that end the process
};

/// Serves from its construction on, on a thread of its own.
class RealtimeKitFinto {
public:
    /// What the service answers to a request, and the limit that it demands, in microseconds.
    struct Indole {
        bool concede = true;
        std::int64_t limite = 200'000;
    };
    explicit RealtimeKitFinto(Indole indole);
    RealtimeKitFinto(const RealtimeKitFinto&) = delete;
    RealtimeKitFinto& operator=(const RealtimeKitFinto&) = delete;
    ~RealtimeKitFinto();

    /// Waits for the first request. Once only.
    RichiestaPuntuale Richiesta() { return richiesta_.get_future().get(); }
    /// For the answering thread: notes the request and says whether it is granted.
    bool Rispondi(const RichiestaPuntuale& richiesta);
    std::int64_t Limite() const { return indole_.limite; }

private:
    void Servi();

    Indole indole_;
    std::promise<void> pronto_;
    std::promise<RichiestaPuntuale> richiesta_;
    Descrittore fine_;
    std::thread filo_;
};

}  // namespace corvana::prova
