#pragma once

#include <string>

#include "standalone/app/Arguments.h"
#include "standalone/app/DocumentReading.h"
#include "standalone/app/IndexSession.h"

namespace standalone {

/// Makes the panel show the wanted columns and rows; done before a file is read, which may take long.
/// Throws: CommandError for columns that there are not.
void SetUpPanel(IndexSession& session, const IndexOptions& options);

/// Reads a timeline file and shows the wanted one of its sequences. Says on standard error which one
/// that is, if the file has several and none was named. Throws: CommandError.
void ShowTimeline(IndexSession& session, DocumentReader& reader, const std::string& file,
                  const IndexOptions& options);

}  // namespace standalone
