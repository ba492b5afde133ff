// What the build puts into the script, compressed and written in base64.
declare module "lesson.bin" {
    const base64: string;
    export default base64;
}

declare module "notices.bin" {
    const base64: string;
    export default base64;
}
