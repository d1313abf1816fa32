// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

/// Progress of one export, and the way in which a cancel gets in. Provided by the host; may be
/// asked from the thread of the export only.
class DATAEXPORT_EXPORT CIProgressCallback {
public:
    CIProgressCallback() = default;
    CIProgressCallback(const CIProgressCallback&) = delete;
    CIProgressCallback& operator=(const CIProgressCallback&) = delete;
    virtual ~CIProgressCallback() = default;

    /// Starts a new scale of `range` units at position 0.
    virtual void initRange(int range) = 0;
    virtual int range() = 0;
    /// Advances by `amount` units. False once the user has cancelled, and from then on;
    /// `step(0.0)` asks without moving.
    virtual bool step(double amount) = 0;
    /// Moves to the end of the scale. False if cancelled.
    virtual bool finish() = 0;
    /// Told true once, when the attachments are about to be fetched.
    virtual void setAttachStage(bool attachStage) = 0;
};
