#pragma once

// All drawing classes. Those without a type here are told by their class descriptor alone.

#include "host/db/OdDbCurves.h"
#include "host/db/OdDbDimensions.h"
#include "host/db/OdDbEntities.h"
#include "host/db/OdDbRecords.h"
#include "host/db/OdDbSurfaces.h"
