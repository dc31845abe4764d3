#pragma once

/*! Types shared with the suite's interfaces. */
namespace IDL {
/*! Partition kinds of a session, as the suite's interface types number them. */
enum PartitionType {
    Any = 0,          ///< no particular partition
    Global = 1,       ///< data shared by all exercises
    Exercise = 2,     ///< one exercise
    AllExercises = 3, ///< every exercise
    Replay = 4        ///< the replay of a recorded exercise
};
} // namespace IDL
