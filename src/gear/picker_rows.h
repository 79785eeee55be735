#pragma once
#include "core/lists.h"

/// The rows that the picker lists of people, rigs, places and reports, by the rules of their row texts.

IdList PickerCustomers();  ///< with the id behind each name
IdList PickerRiggers();    ///< the default rigger is marked
IdList PickerRigs();       ///< rigs that still wait for a name are left out
IdList PickerLocations();  ///< the default one is marked
IdList PickerGearReports();
