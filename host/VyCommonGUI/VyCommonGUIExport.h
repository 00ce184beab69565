#pragma once

#include <QtGlobal>

#ifdef VYCOMMONGUI_LIBRARY
#  define VYCOMMONGUI_EXPORT Q_DECL_EXPORT
#else
#  define VYCOMMONGUI_EXPORT Q_DECL_IMPORT
#endif
