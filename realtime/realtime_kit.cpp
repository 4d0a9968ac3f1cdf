#include "realtime/realtime_kit.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <cstdint>
#include <memory>

#include "realtime/punctuality.h"

namespace corvana {

namespace {

constexpr const char* servizio = "org.freedesktop.RealtimeKit1";
constexpr const char* oggetto = "/org/freedesktop/RealtimeKit1";
/// Enough to run ahead of whatever isn't real-time; sound servers stand above it.
constexpr int prioritaVoluta = 1;

struct Congedo {
    void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, Congedo>;

Bus ApriBus() {
    sd_bus* bus = nullptr;
    sd_bus_open_system(&bus);
    return Bus(bus);
}

/// The longest computing without a wait that the service lets a process have, in microseconds; 0
/// when it doesn't say.
unsigned long LimiteDi(sd_bus* bus) {
    std::int64_t limite = 0;
    const int esito = sd_bus_get_property_trivial(bus, servizio, oggetto, servizio, "RTTimeUSecMax",
                                                  nullptr, 'x', &limite);
    return esito < 0 ? 0 : static_cast<unsigned long>(std::max<std::int64_t>(limite, 0));
}

bool Ottieni(sd_bus* bus, pid_t filo) {
    return sd_bus_call_method(bus, servizio, oggetto, servizio, "MakeThreadRealtime", nullptr,
                              nullptr, "tu", static_cast<std::uint64_t>(filo),
                              static_cast<std::uint32_t>(prioritaVoluta)) >= 0;
}

}  // namespace

bool ChiediARealtimeKit(pid_t filo) {
    const Bus bus = ApriBus();
    if (!bus) return false;
    const unsigned long limite = LimiteDi(bus.get());
    return limite > 0 && LimitaCalcoloPuntuale(limite) && Ottieni(bus.get(), filo);
}

}  // namespace corvana
