// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/midi_length.h"

#include <algorithm>
#include <cstdint>
#include <map>

namespace velmoriax::desktop {

namespace {

using std::chrono::microseconds;

constexpr std::uint32_t standardTempo = 500'000; ///< microseconds of a quarter note

enum Status : unsigned { systemExclusive = 0xF0, escape = 0xF7, meta = 0xFF, statusBit = 0x80 };
enum MetaType : unsigned { endOfTrack = 0x2F, setTempo = 0x51 };

/// Reads bytes from the front of a text. Past the end, `failed` becomes true and zeros are read.
struct Reader {
    std::string_view rest;
    bool failed = false;

    std::string_view take(std::size_t count) {
        failed = failed || count > rest.size();
        const std::string_view taken = failed ? std::string_view() : rest.substr(0, count);
        rest.remove_prefix(failed ? 0 : count);
        return taken;
    }
    std::uint32_t number(std::size_t bytes) {
        std::uint32_t value = 0;
        for (const char byte : take(bytes)) value = value << 8U | static_cast<unsigned char>(byte);
        return value;
    }
    /// Seven bits a byte, the highest bit set in all but the last of at most four.
    std::uint32_t variableNumber() {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            const std::uint32_t byte = number(1);
            value = value << 7U | (byte & 0x7FU);
            if (byte < statusBit) return value;
        }
        failed = true;
        return 0;
    }
};

struct Tracks {
    std::uint64_t lastTick = 0;
    std::map<std::uint64_t, std::uint32_t> tempos; ///< by the tick from which they hold
};

/// Data bytes of a channel message: one for a change of program and for channel pressure, else two.
std::size_t dataBytes(unsigned status) {
    const unsigned kind = status >> 4U;
    return kind == 0xC || kind == 0xD ? 1 : 2;
}

/// A meta event; true when it ends the track.
bool readMeta(Reader& track, std::uint64_t tick, Tracks& tracks) {
    const std::uint32_t type = track.number(1);
    Reader data{track.take(track.variableNumber())};
    if (type == setTempo && data.rest.size() == 3) tracks.tempos[tick] = data.number(3);
    return type == endOfTrack;
}

/// False for damaged events. A track may end without the event that says so.
bool readTrack(Reader track, Tracks& tracks) {
    std::uint64_t tick = 0;
    unsigned running = 0;
    bool ended = false;
    while (!ended && !track.rest.empty() && !track.failed) {
        tick += track.variableNumber();
        const bool hasStatus = !track.rest.empty() && static_cast<unsigned char>(track.rest.front()) >= statusBit;
        const unsigned status = hasStatus ? track.number(1) : running;
        if (status == meta)
            ended = readMeta(track, tick, tracks);
        else if (status == systemExclusive || status == escape)
            track.take(track.variableNumber());
        else if (status >= statusBit && status < systemExclusive)
            track.take(dataBytes(running = status));
        else
            return false;
    }
    tracks.lastTick = std::max(tracks.lastTick, tick);
    return !track.failed;
}

microseconds lengthOf(const Tracks& tracks, std::uint32_t division) {
    const bool isTimeCode = division & 0x8000U; // frames a second, negative, and ticks of a frame
    if (isTimeCode) {
        const std::uint64_t ticksOfSecond = (256 - (division >> 8U)) * (division & 0xFFU);
        return microseconds(tracks.lastTick * 1'000'000 / std::max<std::uint64_t>(ticksOfSecond, 1));
    }
    std::uint64_t sum = 0, tick = 0, tempo = standardTempo;
    for (const auto& [from, next] : tracks.tempos) {
        sum += (from - tick) * tempo;
        tick = from;
        tempo = next;
    }
    return microseconds((sum + (tracks.lastTick - tick) * tempo) / std::max(division, 1U));
}

} // namespace

std::optional<microseconds> midiLength(std::string_view bytes) {
    Reader file{bytes};
    if (file.take(4) != "MThd") return std::nullopt;
    Reader header{file.take(file.number(4))};
    header.take(4);
    const std::uint32_t division = header.number(2);
    Tracks tracks;
    int count = 0;
    while (!file.rest.empty() && !file.failed && !header.failed) {
        const std::string_view kind = file.take(4);
        const Reader chunk{file.take(file.number(4))};
        if (kind != "MTrk") continue;
        if (file.failed || !readTrack(chunk, tracks)) return std::nullopt;
        ++count;
    }
    if (count == 0 || tracks.lastTick == 0) return std::nullopt;
    return lengthOf(tracks, division);
}

} // namespace velmoriax::desktop
