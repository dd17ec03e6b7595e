#pragma once

#include "document/Result.h"

#include <QByteArrayView>
#include <QString>

namespace tb {

// Replaces the file at path with bytes, or leaves it exactly as it was.
//
// The bytes go to a temporary file in the same folder; every write, the flush to the
// disk (fsync) and the close are checked, and only then is the temporary file renamed
// over the target. On any failure the temporary file is removed and the earlier file
// is untouched, byte for byte. A process killed part-way leaves at most a stray
// temporary file beside the target, never a damaged target.
//
// The failure's message is the cause as the system states it, as a sentence, e.g.
// "No space left on device." Callers put it after their own message.
Result WriteFileAtomically(const QString &path, QByteArrayView bytes);

// A caller's message followed by the cause of a failed write, on a line of its own.
QString WithCause(const QString &message, const Result &failure);

} // namespace tb
