// A template update of 40 fields to a local server through a general AMCP client library at its fastest: the replies are
// awaited together at the end. Prints microseconds an update. Wants casparcg-connection in the folder it runs in.
import net from 'node:net'
import { CasparCG } from 'casparcg-connection'

const updates = 3000
const fields = Array.from({ length: 40 }, (_, i) => `<componentData id="f${i}"><data type="txt" ani="0" value="value ${i}"></data></componentData>`)
const data = `<templateData>${fields.join('')}</templateData>`

const server = net.createServer((socket) => {
  let received = ''
  socket.on('data', (bytes) => {
    received += bytes
    for (let end = received.indexOf('\r\n'); end >= 0; end = received.indexOf('\r\n')) {
      const [, id, command] = /^(?:REQ (\S+) )?(.*)/.exec(received.slice(0, end))
      received = received.slice(end + 2)
      const reply = command.startsWith('VERSION') ? '201 VERSION OK\r\n2.4.1\r\n' : '202 CG OK\r\n'
      socket.write((id ? `RES ${id} ` : '') + reply)
    }
  })
})
server.listen(0, '127.0.0.1', async () => {
  const client = new CasparCG({ host: '127.0.0.1', port: server.address().port, autoConnect: true })
  await new Promise((resolve) => client.on('connect', resolve))
  const send = async (count) => {
    const replies = []
    for (let i = 0; i < count; ++i) {
      const { error, request } = await client.cgUpdate({ channel: 1, layer: 20, cgLayer: 1, data })
      if (error) throw error
      replies.push(request)
    }
    await Promise.all(replies)
  }
  await send(updates / 10)
  const start = performance.now()
  await send(updates)
  console.log((((performance.now() - start) / updates) * 1000).toFixed(1))
  process.exit(0)
})
