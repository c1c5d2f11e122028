// The checks registration makes in both creation layouts before it sends a profession, and the look a face
// gives.
#pragma once

#include <cstdint>

class IScreenContext;

class CCreationGates {
public:
    /// Profession 80 needs a new server, or switch A on a server with its achievement tip, or switch B.
    static constexpr std::uint32_t STR_ARCHER_CLOSED = 5000006;
    /// Profession 70 needs the host's "DarkKnightCanCrate" "1".
    static constexpr std::uint32_t STR_DARK_KNIGHT_CLOSED = 3110025;
    static constexpr std::int32_t FACE_LOOK_BASE = 10000;

    static bool IsArcherOpen(const IScreenContext& context);
    /// The string id of the refusal for a profession (the 80 gate first, then the 70 gate), 0 when it may be
    /// created.
    static std::uint32_t RefusalOf(const IScreenContext& context, std::int32_t nProfession);
    /// Face id - 10000, never below 0.
    static std::int32_t LookOfFace(std::int32_t nFace);
};
