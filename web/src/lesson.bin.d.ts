declare module "lesson.bin" {
    const bytes: Uint8Array<ArrayBuffer>;
    export default bytes;
}
