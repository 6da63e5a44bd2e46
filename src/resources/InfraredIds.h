// Control identifiers of the windows of beam and receive, as in ControlIds.h.
#pragma once

namespace quill {

namespace ReceiverIds {
inline constexpr int kDialog = 284;
inline constexpr int kAddress = 1001;
inline constexpr int kFoundLabel = 1002;
inline constexpr int kFound = 1003;
}  // namespace ReceiverIds

// Its buttons have the ids of their results.
namespace ConsentIds {
inline constexpr int kDialog = 285;
inline constexpr int kPeer = 1001;
inline constexpr int kAddress = 1002;
inline constexpr int kCard = 1003;
inline constexpr int kAlways = 1004;
}  // namespace ConsentIds

}  // namespace quill
