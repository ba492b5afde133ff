declare module "lesson.bin" {
    const base64: string;
    export default base64;
}
