#pragma once

#include <functional>

/// Who a child process is: whoever runs the tests, or, where that is root, one without its rights.
enum class User { ofTests, ordinary };

/// Whether the tests can have a child be this user.
bool canBe(User user);

/// What a child process came to: 0, an error number, or beyond them the signal that ended it.
constexpr int signalled = 1000;
int outcomeInChild(const std::function<int()>& action, User user = User::ofTests);
