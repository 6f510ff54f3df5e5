#pragma once

/// Web address of the makers.
constexpr auto WebAdresse = "vext.example";
