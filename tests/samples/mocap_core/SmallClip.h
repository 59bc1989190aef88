#pragma once

namespace qvo::zmx::mocap {

/// Two joints, the leg 10 units below the hips, which rise from 100 to 101 in one 120th of a second.
inline constexpr char kSmallClip[] =
    "HIERARCHY\nROOT Hips\n{\nOFFSET 0 0 0\nCHANNELS 1 Yposition\n"
    "JOINT Leg\n{\nOFFSET 0 -10 0\nCHANNELS 0\n}\n}\n"
    "MOTION\nFrames: 2\nFrame Time: .0083333\n100\n101\n";

}  // namespace qvo::zmx::mocap
