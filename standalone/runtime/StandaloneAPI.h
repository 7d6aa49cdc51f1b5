#pragma once

/// Marks what the host library offers to the program and to tests, beside the contracts of `host/`.
#define STANDALONE_API __attribute__((visibility("default")))
