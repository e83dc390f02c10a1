// A new start of the phone as it is: its state, its time and its files stay.
export async function restart(connection, device, { width, height, scale }) {
    const { time } = await connection.call("phone.info");
    await connection.call("phone.start", { ...device, screen: { width, height, scale }, ...(time ? { time } : {}) });
}
