#pragma once

/// The contracts of the host services that a panel module calls.
///
/// Every header here declares services that the host application implements; a module links none
/// of them, it meets them when the host loads it. One folder a namespace, one concept a header.
///
/// ## Threads
/// Each operation says where it may be called:
/// - `[main-thread]`: the thread that runs the user interface and drains the main queue. It is never
///   blocked for longer than an event takes. The host names the operation and stops (debug builds
///   and tests) when it is called elsewhere.
/// - `[pool-thread]`: a thread of the host's CPU-bound pool; blocking it delays other work.
/// - `[any-thread]`: any thread at all, several at once.
/// - `under read lock`: the caller holds BE::GetBackendReadLock() as well.
///
/// ## Ownership
/// - `qelcore::Ref<T>` owns: the object lives at least as long as the reference.
/// - `std::shared_ptr` owns in the same way; its control block is made by host code.
/// - A raw pointer or a C++ reference parameter is borrowed for the call, unless it says more.
///
/// ## Failure
/// An operation that can fail raises a qelcore::config::qel_exception, and says when. "Throws:
/// nothing" includes running out of memory only where the operation is `noexcept`.
///
/// ## What is not promised
/// Layout of host classes between host versions, the order of delivery between different stations,
/// and how soon a queued function runs.

/// Marks a class or function that crosses the border between host and module.
#define HOST_API __attribute__((visibility("default")))
