#pragma once

namespace IDL {
// Partition kinds of a session, as the suite's interface types number them.
enum PartitionType { Any = 0, Global = 1, Exercise = 2, AllExercises = 3, Replay = 4 };
} // namespace IDL
