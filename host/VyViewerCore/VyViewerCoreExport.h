#pragma once

#include <QtGlobal>

#ifdef VYVIEWERCORE_LIBRARY
#  define VYVIEWERCORE_EXPORT Q_DECL_EXPORT
#else
#  define VYVIEWERCORE_EXPORT Q_DECL_IMPORT
#endif
