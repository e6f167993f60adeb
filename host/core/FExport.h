#pragma once

#include <QtGlobal>

/** Marks what other libraries and programs use of a library of the host; everything else is hidden. */
#define MERIX_EXPORT Q_DECL_EXPORT
