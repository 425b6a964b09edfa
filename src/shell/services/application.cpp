#include "shell/services/application.h"

Application application;
