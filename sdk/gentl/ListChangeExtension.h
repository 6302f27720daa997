#pragma once

// A producer may export one function that GenTL does not define. With it, a producer that searches by itself
// reports at once that its list of interfaces or devices has changed; GenTL has no event for this that works
// without a node map of the interface. Other consumers do not know the function and are not affected.

/// Name of the exported function.
constexpr char listChangedFunctionName[] = "CvxListChangedDescriptor";

/// Returns a descriptor that is readable after a list has changed, or -1 if the producer does not search by
/// itself. Read 8 bytes to clear it; then update the lists with a timeout of 0, which returns what the
/// producer knows and starts no search. The descriptor is non-blocking, belongs to the producer, and is valid
/// from GCInitLib to GCCloseLib. Returning a descriptor promises that a device that is not listed is gone, so
/// the consumer need not tolerate a missed search.
using ListChangedFunction = int();
