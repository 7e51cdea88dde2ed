#pragma once

#include "cli/CommandLine.h"
#include "cli/Verbs.h"

// The functions of the verbs that draw, by name: quillmark-draw runs the
// command line with them.
DrawingVerbs drawingVerbs();

int chartVerb(const Invocation& call, SummaryBooks& books);
int reportVerb(const Invocation& call, SummaryBooks& books);
int printVerb(const Invocation& call, SummaryBooks& books);
