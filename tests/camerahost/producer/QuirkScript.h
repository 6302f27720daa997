#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The script of the quirk producer: the file "name.script" in the directory of "name.cti". It is read again
/// as soon as it is replaced, and then counts calls from 1 again. Every function may be called from any
/// thread.
///
/// A line "FUNCTION ACTION" is a rule for every call of a function, "FUNCTION:DETAIL ACTION" only for calls
/// with this detail: the number of an info command, the hexadecimal address of a port access, the access of
/// IFOpenDevice, the operation of DSFlushQueue, or the event of GCRegisterEvent. "@3" behind the name limits
/// the rule to the third call, "@3-5" and "@3-" to several calls. The first rule that fits counts. The
/// function "image" is called on the thread of the producer before each image.
///
/// Actions of every function: error CODE, crash, hang, slow MILLISECONDS and the others of
/// tests/sdk/producer/Misbehaviour.cpp. Info functions also accept "value VALUE" and "bytes LENGTH" (of the
/// value), "image" accepts cut-short, twice (one buffer in two events), foreign (an additional event with an
/// unknown handle), silent (no event) and scribble (damages the shared memory).
///
/// Settings, with their defaults: cameras A1 (several IDs are possible), gone ID (this camera is unplugged),
/// width 64, height 48, format 0x01080001, image-offset 0, line-padding 0 (bytes), parts 0 (of a multi-part
/// buffer), chunk-order big, technology GEV, interval 2000 (microseconds between images), images NUMBER (then
/// none any more), frame-ids NUMBER…, streams 1, min-buffers 2, alignment 1, event-size 16, max-read BYTES,
/// short-read 0 (bytes that are missing), behind-description 0 (NULs), url URL…, no-urls, stale-payload
/// (until TLParamsLocked is 1), start-needs-lock, free-running
/// (no AcquisitionStart is needed), incomplete-infos-fail.
///
/// The producer writes its calls to "name.log". The description of the cameras is in "name.xml".
namespace QuirkScript {

/// Counts a call of a function and returns the action for this call; empty if there is none.
std::string actionFor(const std::string &function, const std::string &detail = {});

bool has(const std::string &setting);
std::uint64_t number(const std::string &setting, std::uint64_t fallback); ///< Decimal, or "0x" and digits.
std::string text(const std::string &setting, const std::string &fallback);

/// Returns the words of all lines with this setting.
std::vector<std::string> words(const std::string &setting);

/// Returns the path of the producer's file with another suffix.
std::string pathWith(const std::string &suffix);

/// Appends a line to the log, after the process ID.
void log(const std::string &line);

} // namespace QuirkScript
