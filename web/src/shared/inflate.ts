// A module of its own, since it makes its tables when it is loaded: that takes time, and few browsers need it.
export { unzlibSync } from "fflate";
