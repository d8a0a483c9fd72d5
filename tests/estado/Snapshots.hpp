#pragma once

#include <string>
#include <vector>

/// One member of a snapshot's text: its key, and its value as JSON.
struct SnapshotMember {
    std::string key;
    std::string value;
};

/// A snapshot with every key, one profile and one application, member by member.
std::vector<SnapshotMember> fullSnapshot();

std::vector<SnapshotMember> fullProfile();
std::vector<SnapshotMember> fullApplication();

/// The JSON object of these members.
std::string object(const std::vector<SnapshotMember>& members);

/// The same members with another value under this key, or none at all.
std::vector<SnapshotMember> replacing(std::vector<SnapshotMember> members,
                                      const std::string& key,
                                      const std::string& value);
std::vector<SnapshotMember> without(std::vector<SnapshotMember> members, const std::string& key);
