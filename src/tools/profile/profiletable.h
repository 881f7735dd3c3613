#pragma once

#include "profile/pathprofile.h"
#include "shared/tableexport.h"

/// The rows of a profile as a table for other programs: where each begins, how long it is, its name and type, and what the
/// quantities are there, with their bounds. \param profile must outlive the table
TableExport profileTable(const PathProfile &profile, const std::vector<ProfileQuantity> &quantities);
