// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

class PRBackup;

/// How many selected attachments of these data types are still known by their address alone. Behind
/// an export these are the ones that could not be fetched.
int unfetchedAttachments(const PRBackup& records, const QVector<int>& dataTypes);
