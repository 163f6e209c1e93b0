#include "stdafx.h"
