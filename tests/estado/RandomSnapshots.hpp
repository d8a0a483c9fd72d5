#pragma once

#include "estado/Snapshots.hpp"

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// Texts of snapshots made up by chance: as a host application may write them, and with the faults
/// that one may make. The same seed gives the same texts.
class RandomSnapshots {
  public:
    explicit RandomSnapshots(std::uint64_t seed) : random_(seed) {}

    /// Valid, in any order of its members and with blanks and unknown members.
    std::string intact();
    /// With something wrong, or only unusual, in one or two members.
    std::string spoiled();
    /// With a few bytes replaced, removed, added or copied from elsewhere in it.
    std::string damaged();

  private:
    using Members = std::vector<SnapshotMember>;

    std::size_t below(std::size_t limit);
    bool happens(double probability);
    template <std::size_t Count>
    std::string oneOf(const char* const (&texts)[Count]);

    std::string text();
    std::string number();
    std::string wholeNumber(std::size_t most);
    std::string limit();
    std::string truth();
    std::string curve();
    std::string anyValue(int depth = 0);

    Members profile();
    Members application();
    Members snapshot();
    template <class Make>
    std::string list(Make make);

    void spoil(Members& members);
    std::string written(Members members);

    std::mt19937_64 random_;
    int faults_ = 0;  ///< that are still to be put into the text being made
};
