#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "fuzz/support.hpp"

// A result of the lesson's interface, which has to be valid JSON.
inline nlohmann::json parsed(const char* result)
{
    nlohmann::json json = nlohmann::json::parse(result, nullptr, false);
    require(!json.is_discarded(), "the result is valid JSON");
    return json;
}

inline std::string textIn(const nlohmann::json& object, const char* name)
{
    require(object.contains(name) && object[name].is_string(), name);
    return object[name].get<std::string>();
}
